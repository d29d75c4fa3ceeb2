// Every handler that a learner can reach, by each hand: what the table says that it does.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Pointing, Typing } from '../../browsers/program.mjs';
import { readCases } from './table.mjs';

// From case to case, so that each picture follows another kind of picture. "Timer1" is what
// "start" and "CONTINUE" set going; Option1 is never shown.
const kTour = ['DYNAMEISDIAFORES', 'GUESSFORCE', 'GUESSFORCE', 'arxikives', 'DYNAMEISDIAFORES',
  'syxnotikamp', 'campyles', 'epitaxyno', 'DYNAMEISDIAFORES', 'Option3', 'KSEKINA', 'STAMATHMA',
  'Option2', 'vimatimi', 'VIMA', 'Command1', 'VIMA', 'KSEKINA', 'DYNAMEISDIAFORES', 'STAMATHMA',
  'Option3', 'DYNAMEISDIAFORES', 'Option3', 'XANAPISO', 'platosvalue', 'campyles', 'TERMATISMOS'];

const { opening, handlers } = readCases();

function handlerFor(name, state) {
  const fitting = handlers.filter((one) => one.name === name);
  return fitting.find(({ when }) => when && state[when[0]] === when[1])
    ?? fitting.find(({ when }) => !when);
}

// What there is to see of the case: the properties of elements, and of the rest these two.
const visible = (state) => Object.fromEntries(Object.entries(state).filter(([name]) =>
  name.includes(' ') || name === 'explanation' || name === 'timer'));

function checkPicture({ sketch, picture }, before, now, wasRunning) {
  const kinds = {
    factors: () => now.black > 0 && now.pink === 0,
    curvature: () => now.pink > 0,
    step: () => now.hash !== before.hash && now.pink === before.pink,
    none: () => (sketch === 'cleared' ? now.blank : wasRunning || now.hash === before.hash),
  };
  assert.ok(kinds[picture ?? 'none'](), `${picture} instead of ${JSON.stringify({ before, now })}`);
}

async function writeOver(program) {
  await program.engine.pointer('mouse').click(await program.engine.middle('Text1'));
  for (const letter of 'cω') await program.engine.press(letter);
  const written = await program.explanation();
  assert.match(written, /cω/);
  return written;
}

async function tour(program, hand) {
  await program.open();
  let state = opening;
  for (const name of kTour) {
    const { way, value, effect, when } = handlerFor(name, state);
    const wasRunning = state.timer === 'on';
    const written = await writeOver(program);
    const before = await program.look();

    await (way === 'click' ? hand.click(name) : hand.scroll(name, value));
    if (effect.program === 'ended') return;
    state = { ...state, explanation: 'kept', ...effect };
    // While a run goes on, the picture changes from frame to frame.
    const looks = [await program.look(), await program.look()];
    const now = {
      ...(await program.state()),
      explanation: (await program.explanation()) === written ? 'kept' : 'written',
      timer: looks[0].hash === looks[1].hash ? 'off' : 'on',
    };
    const wanted = visible(state);
    const seen = Object.fromEntries(Object.keys(wanted).map((key) => [key, now[key]]));
    assert.deepEqual(seen, wanted, `${name} ${way} ${when ?? ''}`);
    if (now.timer === 'off') checkPicture(effect, before, looks[0], wasRunning);
  }
}

export function testCases(program, { touch }) {
  const hands = { mouse: new Pointing(program, 'mouse'), keyboard: new Typing(program),
    ...(touch && { touch: new Pointing(program, 'touch') }) };
  test('the page opens with its case, and the tour leads past every handler', async () => {
    await program.open();
    const shown = await program.state();
    const properties = Object.entries(opening).filter(([name]) => name.includes(' '));
    assert.deepEqual({ ...shown, ...Object.fromEntries(properties) }, shown);
    const missed = handlers.map(({ name }) => name).filter((name) => !kTour.includes(name));
    assert.deepEqual(missed, ['Option1', 'Timer1']);
  });
  for (const [name, hand] of Object.entries(hands)) {
    test(`every handler does what it shall, by ${name}`, () => tour(program, hand));
  }
}
