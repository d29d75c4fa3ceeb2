// Every handler that a learner can reach, by each hand: what the table says that it does.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Pointing, Typing } from './program.mjs';
import { readCases } from './table.mjs';

// From case to case, so that each picture follows another kind of picture. "Timer1" is what
// "start" and "CONTINUE" set going; Option1 is never shown.
const kTour = ['DYNAMEISDIAFORES', 'GUESSFORCE', 'GUESSFORCE', 'arxikives', 'DYNAMEISDIAFORES',
  'syxnotikamp', 'campyles', 'epitaxyno', 'DYNAMEISDIAFORES', 'Option3', 'KSEKINA', 'STAMATHMA',
  'Option2', 'vimatimi', 'VIMA', 'Command1', 'VIMA', 'KSEKINA', 'DYNAMEISDIAFORES', 'STAMATHMA',
  'Option3', 'DYNAMEISDIAFORES', 'Option3', 'XANAPISO', 'platosvalue', 'campyles', 'TERMATISMOS'];
const kUnseen = ['steps', 'interval', 'scale']; // of a case, on the page

const { opening, handlers } = readCases();

function handlerFor(name, state) {
  const fitting = handlers.filter((one) => one.name === name);
  return fitting.find(({ when }) => when && state[when[0]] === when[1])
    ?? fitting.find(({ when }) => !when);
}

// What of the case is a property of an element.
const elements = (state) =>
  Object.fromEntries(Object.entries(state).filter(([name]) => name.includes(' ')));

function checkPicture({ sketch, picture }, before, now, wasRunning) {
  const kinds = {
    factors: () => now.black > 0 && now.pink === 0,
    curvature: () => now.pink > 0,
    step: () => now.hash !== before.hash && now.pink === before.pink,
    none: () => (sketch === 'cleared' ? now.white === now.pixels
      : wasRunning || now.hash === before.hash),
  };
  assert.ok(kinds[picture ?? 'none'](), `${picture} instead of ${JSON.stringify({ before, now })}`);
}

async function tour(program, hand) {
  await program.open();
  let state = { ...opening };
  const shown = await program.state();
  assert.deepEqual({ ...elements(state), ...shown }, shown);
  for (const name of kTour) {
    const { way, value, effect, when } = handlerFor(name, state);
    await program.engine.pointer('mouse').click(await program.engine.middle('Text1'));
    await program.engine.press('z');
    const marked = await program.explanation();
    const before = await program.look();
    const wasRunning = state.timer === 'on';

    await (way === 'click' ? hand.click(name) : hand.scroll(name, value));
    if (effect.program === 'ended') return;
    state = { ...state, ...effect };
    const context = `${name} ${way} ${when ?? ''}`;
    const wanted = elements(state);
    const now = await program.state();
    for (const [property, is] of Object.entries(wanted)) {
      assert.equal(now[property], is, `${context}: ${property}`);
    }
    const written = (await program.explanation()) !== marked;
    assert.equal(written, effect.explanation === 'written', `${context}: explanation`);
    // While a run goes on, the picture changes from frame to frame.
    const looks = [await program.look(), await program.look()];
    const running = looks[0].hash !== looks[1].hash;
    assert.equal(running, state.timer === 'on', `${context}: timer`);
    if (!running) checkPicture(effect, before, looks[0], wasRunning);
  }
}

export function testCases(program, { touch }) {
  const hands = { mouse: new Pointing(program, 'mouse'), keyboard: new Typing(program),
    ...(touch && { touch: new Pointing(program, 'touch') }) };
  test('the tour leads past every handler', () => {
    const missed = handlers.map(({ name }) => name).filter((name) => !kTour.includes(name));
    assert.deepEqual(missed, ['Option1', 'Timer1']);
    assert.ok(kUnseen.every((name) => name in opening));
  });
  for (const [name, hand] of Object.entries(hands)) {
    test(`every handler does what it shall, by ${name}`, () => tour(program, hand));
  }
}
