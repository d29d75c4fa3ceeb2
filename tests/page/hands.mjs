// What the hands do beyond the tour of the cases: keys in the menu, all that a bar answers to, picks
// and forces by mouse, finger and keyboard, a run to its end.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Pointing, Typing } from './program.mjs';

const kCrest = [6, 2];
const kUnderTheSketch = [6.3, -10.9];
const kRight = 'FORCE: HAS THE CORRECT DIRECTION FOR THE SHAPE OF THE CURVE';
const kWrong = 'FORCE: HAS WRONG DIRECTION FOR THE SHAPE OF THE CURVE';

async function startGuessing(program) {
  await program.open();
  await new Pointing(program, 'mouse').click('GUESSFORCE');
}

// The accessibility tree may follow the page a moment later.
async function checkBar({ engine }, id, steps) {
  for (const [what, go, value] of steps) {
    await go();
    let told = null;
    await engine.waitFor(async () => (told = (await engine.accessible(id)).value) === value)
      .catch(() => assert.equal(told, value, `${id}: ${what}`));
  }
}

function testBars(program, mouse) {
  test('a bar answers to keys, wheel, trough and thumb as the program says', async () => {
    await program.open();
    const { engine } = program;
    const key = (name) => [name, () => engine.press(name)];
    const at = async (id, value) => program.thumb(await program.bar(id), value);
    const click = (id, value) =>
      [`trough at ${value}`, async () => mouse.pointer.click(await at(id, value))];
    const drag = (id, value) => [`thumb to ${value}`, () => mouse.drag(id, value)];
    const wheel = (id, turn) => [`wheel by ${turn}`, async () => engine.wheel(await at(id, 1), turn)];
    await new Typing(program).pressUntil('platosvalue', 'Tab');
    await checkBar(program, 'platosvalue', [
      [...key('ArrowDown'), '2.1'], [...key('ArrowUp'), '2.0'], [...key('ArrowRight'), '2.1'],
      [...key('PageDown'), '2.6'], [...key('PageUp'), '2.1'], [...key('End'), '3.5'],
      [...key('Home'), '0.1'], [...click('platosvalue', 30), '0.6'],
      [...wheel('platosvalue', 120), '0.7'], [...wheel('platosvalue', -120), '0.6'],
      [...drag('platosvalue', 35), '3.5']]);
    await new Typing(program).pressUntil('epitaxyno', 'Tab');
    await checkBar(program, 'epitaxyno', [
      [...key('ArrowLeft'), '1.9'], [...key('ArrowUp'), '1.8'], [...key('Home'), '-3.5'],
      [...click('epitaxyno', 30), '-3.4'], [...drag('epitaxyno', 35), '3.5']]);
  });
}

function testMenu(program) {
  test('the menu bar is worked by its keys', async () => {
    await program.open();
    const { engine } = program;
    await new Typing(program).pressUntil('platosvalue', 'Tab');
    const steps = [['F10', 'XANAPISO'], ['ArrowRight', 'periptoseis'], ['End', 'TERMATISMOS'],
      ['ArrowRight', 'XANAPISO'], ['ArrowLeft', 'TERMATISMOS'], ['Home', 'XANAPISO'],
      ['ArrowRight', 'periptoseis'], ['ArrowDown', 'DYNAMEISDIAFORES'], ['ArrowDown', 'GUESSFORCE'],
      ['ArrowDown', 'DYNAMEISDIAFORES'], ['ArrowUp', 'GUESSFORCE'], ['Escape', 'periptoseis'],
      ['Escape', 'platosvalue'], ['F10', 'XANAPISO'], ['F10', 'platosvalue'], ['F10', 'XANAPISO'],
      ['c', 'DYNAMEISDIAFORES'], ['g', 'platosvalue']];
    for (const [key, focused] of steps) {
      await engine.press(key);
      assert.equal(await program.focused(), focused, key);
    }
    assert.equal((await program.state())['GUESSFORCE checked'], true);
  });
}

function testForces(program, { touch, emulate }) {
  const mouse = new Pointing(program, 'mouse');

  test('a force is pulled by the mouse, out of the sketch, and judged with SHIFT alone', async () => {
    await startGuessing(program);
    await mouse.pull(kCrest, kUnderTheSketch);
    const pressed = await program.look();
    assert.ok(pressed.olive > 0 && pressed.blue === 0);
    await program.engine.key('keyDown', 'Shift');
    await mouse.pull(kCrest, kUnderTheSketch);
    await program.waitForTold(kRight);
    assert.ok((await program.look()).blue > 0);

    const { pointer } = mouse;
    await pointer.down(await program.place(...kCrest));
    await program.evaluate(`void document.getElementById('eikona').dispatchEvent(
      new PointerEvent('pointercancel', { pointerId: 1, pointerType: 'mouse', isPrimary: true }))`);
    await pointer.move(await program.place(9.5, 3));
    await pointer.up();
    await program.engine.key('keyUp', 'Shift');
    assert.equal((await program.look()).hash, pressed.hash);
  });

  test('a force is pulled by the keyboard', async () => {
    await startGuessing(program);
    await new Typing(program).pressUntil('eikona', 'Tab');
    await program.engine.key('keyDown', 'Shift');
    await program.engine.press('ArrowUp');
    await program.waitForTold('Force x = 0.00, y = 0.25');
    await program.engine.key('keyUp', 'Shift');
    await program.waitForTold(kWrong);
  });

  test('a finger pulls with the SHIFT button, a second one does nothing', { skip: !touch || !emulate },
    async () => {
      const finger = new Pointing(program, 'touch');
      await program.engine.emulate('coarse');
      await startGuessing(program);
      await finger.pull(kCrest, [9.5, 3]);
      const pressed = await program.look();
      assert.ok(pressed.olive > 0 && pressed.blue === 0);
      const isHeld = "document.getElementById('SHIFT').getAttribute('aria-pressed') === 'true'";
      await finger.click('SHIFT');
      assert.ok(await program.evaluate(isHeld));
      await finger.pointer.down(await program.place(...kCrest));
      const second = program.engine.pointer('touch', 'second');
      await second.click(await program.place(12, 0));
      assert.equal((await program.look()).hash, pressed.hash);
      await finger.pointer.move(await program.place(9.5, 3));
      await finger.pointer.up();
      await program.waitForTold(kWrong);
      assert.ok((await program.look()).blue > 0);
      assert.ok(!(await program.evaluate(isHeld)));
      await program.engine.emulate();
      await program.waitFor("!document.getElementById('SHIFT').checkVisibility()");
    });
}

export function testHands(program, limits) {
  const mouse = new Pointing(program, 'mouse');
  testBars(program, mouse);
  testMenu(program);
  testForces(program, limits);

  test('a run tells its marks and its end', async () => {
    await program.open();
    await mouse.click('campyles');
    await mouse.click('Option2');
    await mouse.drag('vimatimi', 20);
    await mouse.click('Command1');
    await program.waitForTold('Ds =');
    await program.waitForTold('The run has ended: the body has left the sketch');
    const ended = await program.look();
    await program.frames(4);
    assert.equal((await program.look()).hash, ended.hash);
  });

  test('the explanation can be written in', async () => {
    await program.open();
    await mouse.click('Text1');
    await program.engine.press('Control', 'a');
    await program.engine.press('ω');
    assert.equal(await program.explanation(), 'ω');
    await mouse.click('DYNAMEISDIAFORES');
    assert.notEqual(await program.explanation(), 'ω');
  });
}
