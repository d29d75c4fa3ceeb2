// What the hands do beyond the tour of the cases: keys in the menu, all that a bar answers to,
// forces by mouse, pen, finger and keyboard, a run to its end.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Pointing, Typing } from '../../browsers/program.mjs';

const kNotch = 120; // of a wheel
const kCrest = [6, 2];
const kUnderTheSketch = [6.3, -10.9];
const kAhead = [9.5, 3];
const kMiddle = [6, 0];
const kElsewhere = [12, 0];
const kRight = 'FORCE: HAS THE CORRECT DIRECTION FOR THE SHAPE OF THE CURVE';
const kWrong = 'FORCE: HAS WRONG DIRECTION FOR THE SHAPE OF THE CURVE';
const kEnd = 'The run has ended: the body has left the sketch';
const kShiftIsHeld = "document.getElementById('SHIFT').getAttribute('aria-pressed') === 'true'";
const kHearPress = `document.addEventListener('pointerdown',
  ({ pointerId }) => { globalThis.pressing = pointerId; }, { once: true, capture: true })`;
const kCancel = `void document.getElementById('eikona').dispatchEvent(
  new PointerEvent('pointercancel', { pointerId: pressing, isPrimary: true }))`;

// What is pressed in the menu, and who has the keyboard then.
const kMenuKeys = [
  ['F10', 'XANAPISO'], ['ArrowRight', 'periptoseis'], ['End', 'TERMATISMOS'],
  ['ArrowRight', 'XANAPISO'], ['ArrowLeft', 'TERMATISMOS'], ['Home', 'XANAPISO'],
  ['ArrowRight', 'periptoseis'], ['ArrowDown', 'DYNAMEISDIAFORES'], ['ArrowDown', 'GUESSFORCE'],
  ['ArrowDown', 'DYNAMEISDIAFORES'], ['ArrowUp', 'GUESSFORCE'], ['Escape', 'periptoseis'],
  ['Escape', 'platosvalue'], ['F10', 'XANAPISO'], ['F10', 'platosvalue'], ['F10', 'XANAPISO'],
  ['c', 'DYNAMEISDIAFORES'], ['g', 'platosvalue'],
];

// Where a key is pressed while which other one is held: that is for the browser, or for nobody.
const kNotOurs = [
  ['eikona', 'F10', 'shiftKey'], ['eikona', 'ArrowLeft', 'altKey'],
  ['eikona', 'ArrowLeft', 'metaKey'], ['platosvalue', 'ArrowLeft', 'ctrlKey'],
  ['XANAPISO', 'ArrowLeft', 'altKey'], ['XANAPISO', 'ArrowLeft', 'ctrlKey'],
];
const kTaken = `${JSON.stringify(kNotOurs)}.filter(([id, key, held]) =>
  !document.getElementById(id).dispatchEvent(new KeyboardEvent('keydown',
    { key, [held]: true, bubbles: true, cancelable: true })))`;

// What is done to a bar, one after the other, and its value then. One bar stands, the other lies.
const kBars = {
  platosvalue: [
    ['press', 'ArrowDown', '2.1'], ['press', 'ArrowUp', '2.0'], ['press', 'ArrowRight', '2.1'],
    ['press', 'PageDown', '2.6'], ['press', 'PageUp', '2.1'], ['press', 'End', '3.5'],
    ['press', 'Home', '0.1'], ['click the trough at', 30, '0.6'],
    ['click the arrow', 'after', '0.7'], ['click the arrow', 'before', '0.6'],
    ['wheel', kNotch, '0.7'], ['wheel', -kNotch, '0.6'], ['drag the thumb to', 35, '3.5'],
  ],
  epitaxyno: [
    ['press', 'ArrowLeft', '1.9'], ['press', 'ArrowUp', '1.8'], ['press', 'Home', '-3.5'],
    ['click the trough at', 30, '-3.4'], ['click the arrow', 'after', '-3.3'],
    ['click the arrow', 'before', '-3.4'], ['drag the thumb to', 35, '3.5'],
  ],
};
const kPartsOfNotch = [
  ['wheel', kNotch / 4, '2.0'], ['wheel', kNotch / 4, '2.0'], ['wheel', kNotch / 4, '2.0'],
  ['wheel', kNotch / 4, '2.1'],
];

async function startGuessing(program) {
  await program.open();
  await new Pointing(program, 'mouse').click('GUESSFORCE');
}

// A point that is pressed shows the friction there, in olive; a force that is judged is blue.
async function checkSketch(program, { judged }) {
  const { olive, blue, hash } = await program.look();
  assert.deepEqual({ pressed: olive > 0, judged: blue > 0 }, { pressed: true, judged });
  return hash;
}

function testBars(program, mouse, { partNotch }) {
  const deeds = {
    press: (id, key) => program.engine.press(key),
    wheel: async (id, turn) => program.engine.wheel(await program.thumb(id, 1), turn),
    'click the trough at': async (id, at) => mouse.pointer.click(await program.thumb(id, at)),
    'click the arrow': async (id, where) => mouse.pointer.click(await program.arrow(id, where)),
    'drag the thumb to': (id, to) => mouse.scroll(id, to),
  };
  async function check(id, steps) {
    await program.open();
    await new Typing(program).pressUntil(id, 'Tab');
    for (const [deed, by, value] of steps) {
      await deeds[deed](id, by);
      await program.checkTold({ [id]: { value } }, `${deed} ${by}`);
    }
  }
  for (const [id, steps] of Object.entries(kBars)) {
    test(`${id} answers to keys, wheel, trough, arrows and thumb`, () => check(id, steps));
  }
  test('parts of a notch add up', { skip: !partNotch }, () => check('platosvalue', kPartsOfNotch));
}

function testForces(program, limits) {
  for (const [kind, end] of [['mouse', kUnderTheSketch], ['pen', kMiddle]]) {
    const skip = kind === 'pen' && !limits.pen;
    test(`a ${kind} pulls a force, judged with SHIFT alone`, { skip }, async () => {
      const hand = new Pointing(program, kind);
      await startGuessing(program);
      await hand.pull(kCrest, end);
      const pressed = await checkSketch(program, { judged: false });
      await program.engine.key('keyDown', 'Shift');
      await hand.pull(kCrest, end);
      await program.waitForTold(kRight);
      await checkSketch(program, { judged: true });

      await program.evaluate(kHearPress);
      await hand.pointer.down(await program.place(kCrest));
      await program.evaluate(kCancel);
      await hand.pointer.move(await program.place(kAhead));
      await hand.pointer.up();
      await program.engine.key('keyUp', 'Shift');
      assert.equal((await program.look()).hash, pressed);
    });
  }

  const skip = !limits.touch || !limits.emulate;
  test('a finger pulls with the SHIFT button, a second one does nothing', { skip }, async () => {
    const finger = new Pointing(program, 'touch');
    const second = program.engine.pointer('touch', 'second');
    await program.engine.emulate('coarse');
    await startGuessing(program);
    await finger.pull(kCrest, kAhead);
    const pressed = await checkSketch(program, { judged: false });
    await finger.click('SHIFT');
    assert.ok(await program.evaluate(kShiftIsHeld));
    await finger.pointer.down(await program.place(kCrest));
    await second.click(await program.place(kElsewhere));
    assert.equal((await program.look()).hash, pressed);
    await finger.pointer.move(await program.place(kAhead));
    await finger.pointer.up();
    await program.waitForTold(kWrong);
    await checkSketch(program, { judged: true });
    assert.ok(!(await program.evaluate(kShiftIsHeld)));
    // SHIFT is held by one finger while the other one pulls.
    await startGuessing(program);
    await finger.pointer.down(await program.engine.middle('SHIFT'));
    await second.down(await program.place(kCrest));
    await second.move(await program.place(kAhead));
    await second.up();
    await checkSketch(program, { judged: true });
    await finger.pointer.up();
    assert.ok(!(await program.evaluate(kShiftIsHeld)));
    await program.engine.emulate();
    await program.waitFor("!document.getElementById('SHIFT').checkVisibility()");
  });

  test('a force is pulled by the keyboard', async () => {
    await startGuessing(program);
    await new Typing(program).pressUntil('eikona', 'Tab');
    const { hash } = await program.look();
    await program.engine.press('ArrowRight');
    assert.notEqual((await program.look()).hash, hash, 'the pointer has moved');
    await program.engine.key('keyDown', 'Shift');
    await program.engine.press('ArrowUp');
    await program.waitForTold('Force x = 0.00, y = 0.25');
    await program.engine.key('keyUp', 'Shift');
    await program.waitForTold(kWrong);
  });
}

export function testHands(program, limits) {
  const mouse = new Pointing(program, 'mouse');
  testBars(program, mouse, limits);
  testForces(program, limits);

  test('the menu bar is worked by its keys', async () => {
    await program.open();
    await new Typing(program).pressUntil('platosvalue', 'Tab');
    for (const [key, focused] of kMenuKeys) {
      await program.engine.press(key);
      assert.equal(await program.focused(), focused, key);
    }
    assert.equal((await program.state())['GUESSFORCE checked'], true);
  });

  test('keys that are pressed with others are left to the browser', async () => {
    await program.open();
    assert.deepEqual(await program.evaluate(kTaken), []);
  });

  test('a run tells its marks and its end', async () => {
    await program.open();
    await mouse.click('campyles');
    await mouse.click('Option2');
    await new Typing(program).scroll('vimatimi', 20);
    await mouse.click('Command1');
    await program.waitForTold('Ds =');
    await program.waitForTold(kEnd);
    assert.equal(await program.told(), kEnd);
    const ended = await program.look();
    await program.frames(4);
    assert.equal((await program.look()).hash, ended.hash);
  });
}
