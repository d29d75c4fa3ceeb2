// The page as a screen reader is told of it, and what axe-core finds in each case of the program.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';

import { goTo, kWays } from './pictures.mjs';
import { Pointing, Typing } from '../../browsers/program.mjs';
import { readHints } from './table.mjs';

const kAxe = readFileSync(
  new URL('../../browsers/node_modules/axe-core/axe.min.js', import.meta.url), 'utf8');
const kBroken = `axe.run().then(({ violations }) => violations.map(({ id, nodes }) =>
  id + ': ' + nodes.map(({ html }) => html).join(' ')))`;

const kWaysToAll = {
  ...kWays,
  'menu open': [['click', 'periptoseis']],
  'time choice': [['click', 'campyles']],
  ended: [['click', 'TERMATISMOS']],
};
// In these nothing moves, nor does anything cover the sketch.
const kStill = ['opening', 'factors', 'point', 'judgement'];

// What is told at the start and of a run, when a force is guessed.
const slider = (name, value) => ({ role: 'slider', name, value });
const kOpening = {
  platosvalue: slider('Amplitude', '2.0'),
  syxnotikamp: slider('Frequency', '1.5'),
  epitaxyno: slider('Tangential acceleration', '2.00'),
  arxikives: slider('Initial speed', '3'),
  eikona: { role: 'application', name: 'Sketch' },
  Text1: { role: 'textbox', name: 'Explanation' },
};
const kRun = {
  Option2: { role: 'radio', checked: true },
  Option3: { role: 'radio', checked: false },
  vimatimi: { role: 'slider', value: '50, Δt = 0.02' },
  Command1: { role: 'button', name: 'Start' },
  GUESSFORCE: { role: 'menuitemcheckbox', checked: true },
  DYNAMEISDIAFORES: { role: 'menuitemcheckbox', checked: false },
};
const kLabels = {
  Label1: 'Amplitude value: Πλάτος =2.0',
  Label2: 'Frequency value: Συχνότης=1.5',
  Label3: 'Tangential acceleration value: Επιτρόχιος επιτάχυνση= 2.00',
  Label4: 'Initial speed value: Αρχική ταχύτητα = 3',
};
const kTitles = `Object.fromEntries(
  [...document.querySelectorAll('#shell [id]')].map(({ id, title }) => [id, title]))`;
const kTabOrder = ['eikona', 'Text1', 'platosvalue', 'syxnotikamp', 'epitaxyno', 'arxikives'];
const kTabOrderOfRun = ['eikona', 'Text1', 'Option2', 'Option3', 'Command1', 'VIMA', 'vimatimi'];

async function checkTabs(program, stops) {
  await new Typing(program).pressUntil(stops[0], 'Tab');
  for (const stop of stops) {
    assert.equal(await program.focused(), stop);
    await program.engine.press('Tab');
  }
}

export function testAccess(program, { emulate }) {
  const mouse = new Pointing(program, 'mouse');
  const plain = {}; // how the sketch looks in the usual colours

  for (const scheme of ['light', 'dark', 'forcedColours']) {
    const skip = scheme !== 'light' && !emulate;
    test(`nothing shuts anybody out, colours: ${scheme}`, { skip }, async () => {
      await program.engine.resize(1366, 768);
      if (emulate) await program.engine.emulate(scheme);
      for (const name of scheme === 'light' ? Object.keys(kWaysToAll) : kStill) {
        await program.open();
        await program.evaluate(`(() => { ${kAxe} })()`);
        await goTo(program, kWaysToAll[name]);
        await program.frames(2);
        assert.deepEqual(await program.evaluate(kBroken), [], name);
        if (!emulate || !kStill.includes(name)) continue;
        const sketch = await program.engine.screenshot('eikona');
        plain[name] ??= sketch;
        assert.ok(sketch.equals(plain[name]), `the sketch looks another way: ${name}`);
      }
      if (emulate) await program.engine.emulate();
    });
  }

  test('a screen reader is told what is to be seen', async () => {
    await program.open();
    await program.checkTold(kOpening);
    for (const [id, text] of Object.entries(kLabels)) {
      assert.equal(await program.evaluate(`document.getElementById('${id}').textContent`), text);
    }
    assert.match((await program.engine.accessible('eikona')).description, /circles of curvature/);
    assert.equal(await program.engine.accessible('Command1'), null);
    await mouse.click('campyles');
    await mouse.click('Option2');
    await mouse.click('GUESSFORCE');
    await mouse.click('periptoseis');
    await program.checkTold(kRun);
    await mouse.pointer.click(await program.engine.middle('DYNAMEISDIAFORES'));
    await program.waitForTold('The centripetal acceleration is');
  });

  test('everything has its hint', async () => {
    await program.open();
    const titles = await program.evaluate(kTitles);
    const hints = Object.entries(readHints()).filter(([id]) => id in titles);
    assert.deepEqual({ ...titles, ...Object.fromEntries(hints) }, titles);
  });

  test('the tab key leads to everything, in the program\'s order', async () => {
    await program.open();
    await checkTabs(program, kTabOrder);
    await mouse.click('campyles');
    await mouse.click('Option2');
    await checkTabs(program, kTabOrderOfRun);
  });
}
