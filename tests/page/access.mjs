// The page as a screen reader is told of it, and what axe-core finds in each case of the program.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { isDeepStrictEqual } from 'node:util';

import { Pointing, Typing } from './program.mjs';

const kAxe = readFileSync(new URL('node_modules/axe-core/axe.min.js', import.meta.url), 'utf8');
const kBroken = `axe.run().then(({ violations }) => violations.map(({ id, nodes }) =>
  id + ': ' + nodes.map(({ html }) => html).join(' ')))`;

const kSliders = { platosvalue: ['Amplitude', '2.0'], syxnotikamp: ['Frequency', '1.5'],
  epitaxyno: ['Tangential acceleration', '2.00'], arxikives: ['Initial speed', '3'] };
const kLabels = { Label1: 'Amplitude value: Πλάτος =2.0', Label2: 'Frequency value: Συχνότης=1.5',
  Label3: 'Tangential acceleration value: Επιτρόχιος επιτάχυνση= 2.00',
  Label4: 'Initial speed value: Αρχική ταχύτητα = 3' };
const kTabOrder = ['eikona', 'Text1', 'platosvalue', 'syxnotikamp', 'epitaxyno', 'arxikives'];
const kTabOrderOfRun = ['eikona', 'Text1', 'Option2', 'Option3', 'Command1', 'VIMA', 'vimatimi'];

// The cases of the program, one after the other, and what is done to come to each.
const kCases = [
  ['opening', () => {}],
  ['menu open', (program, mouse) => mouse.click('periptoseis')],
  ['curvature', (program, mouse) => mouse.pointer.click([2, 2])
    .then(() => mouse.click('DYNAMEISDIAFORES'))],
  ['point', (program, mouse) => mouse.pull([6, 2], [6, 2])],
  ['guess', (program, mouse) => mouse.click('GUESSFORCE')],
  ['judgement', (program, mouse) => judge(program, mouse)],
  ['time choice', (program, mouse) => mouse.click('campyles')],
  ['factors', (program, mouse) => mouse.click('Option3')],
  ['run', (program, mouse) => mouse.click('Option2').then(() => mouse.click('VIMA', 3))],
  ['ended', (program, mouse) => mouse.click('TERMATISMOS')],
];

async function judge(program, mouse) {
  await program.engine.key('keyDown', 'Shift');
  await mouse.pull([6, 2], [9.5, 3]);
  await program.engine.key('keyUp', 'Shift');
}

async function checkTabs(program, stops) {
  await new Typing(program).pressUntil(stops[0], 'Tab');
  const passed = [];
  while (passed.length < stops.length) {
    passed.push(await program.focused());
    await program.engine.press('Tab');
  }
  assert.deepEqual(passed, stops);
}

// What a browser tells follows the page a moment later.
async function waitForState({ engine }, wanted) {
  const told = async () => Object.fromEntries(await Promise.all(Object.entries(wanted).map(
    async ([id, parts]) => {
      const all = (await engine.accessible(id)) ?? {};
      return [id, Object.fromEntries(Object.keys(parts).map((part) => [part, all[part]]))];
    })));
  await engine.waitFor(async () => isDeepStrictEqual(await told(), wanted))
    .catch(async () => assert.deepEqual(await told(), wanted));
}

export function testAccess(program) {
  const mouse = new Pointing(program, 'mouse');

  test('there is nothing that shuts anybody out', async () => {
    await program.engine.resize(1366, 768);
    await program.open();
    await program.evaluate(`(() => { ${kAxe} })()`);
    for (const [name, go] of kCases) {
      await go(program, mouse);
      await program.frames(2);
      assert.deepEqual(await program.evaluate(kBroken), [], name);
    }
  });

  test('a screen reader is told what is to be seen', async () => {
    await program.open();
    const { engine } = program;
    for (const [id, [name, value]] of Object.entries(kSliders)) {
      const told = await engine.accessible(id);
      assert.deepEqual([told.role, told.name, told.value], ['slider', name, value]);
      assert.notEqual(told.description, '', id);
    }
    for (const [id, name] of Object.entries(kLabels)) {
      assert.equal(await program.evaluate(`document.getElementById('${id}').textContent`), name);
    }
    const sketch = await engine.accessible('eikona');
    assert.equal(sketch.name, 'Sketch');
    assert.match(sketch.description, /circles of curvature/);
    assert.equal(await engine.accessible('Command1'), null);
    await mouse.click('campyles');
    await mouse.click('Option2');
    await waitForState(program, { Option2: { checked: true }, Option3: { checked: false },
      vimatimi: { value: '50, Δt = 0.02' } });
    await mouse.click('GUESSFORCE');
    await mouse.click('periptoseis');
    await waitForState(program, { GUESSFORCE: { checked: true },
      DYNAMEISDIAFORES: { checked: false } });
  });

  test('the tab key leads to everything, in the program\'s order', async () => {
    await program.open();
    await checkTabs(program, kTabOrder);
    await mouse.click('campyles');
    await mouse.click('Option2');
    await checkTabs(program, kTabOrderOfRun);
  });
}
