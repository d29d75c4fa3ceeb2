// Whatever a learner does, in whatever order: nothing breaks, nothing is said on the console, and
// nothing piles up. And when the program has been ended, nothing of it goes on.
import assert from 'node:assert/strict';
import { createHash } from 'node:crypto';
import { test } from 'node:test';

import { copyWith } from '../../browsers/copy.mjs';
import { device, down, stroke, to, turn, up } from '../../browsers/engine.mjs';
import { Pointing, noise } from '../../browsers/program.mjs';

const kEvents = 2000;
const kAtOnce = 20; // of each device, before it is looked whether the program has been ended
const kMostGrowth = 2 ** 20; // bytes of JavaScript, from the first half to the second

// The program's memory is kept where the test finds it.
const kWatch = `{
  const instantiate = WebAssembly.instantiate;
  WebAssembly.instantiate = async (...given) => {
    const made = await instantiate(...given);
    globalThis.memoryOfProgram = made.instance.exports.memory;
    return made;
  };
}`;
const kCountFrames = `void (({ requestAnimationFrame: ask }) => {
  globalThis.framesAsked = 0;
  globalThis.requestAnimationFrame = (then) => {
    globalThis.framesAsked += 1;
    return ask(then);
  };
})(globalThis)`;

// Another walk each time; to take one again, put here what it has printed.
const kSeed = Date.now();

// The same numbers for the same seed, in every version of Node.
function randomFrom(seed) {
  let drawn = 0;
  return (below) => {
    drawn += 1;
    return createHash('sha256').update(`${seed} ${drawn}`).digest().readUInt32BE() % below;
  };
}

const kKeys = ['Tab', 'Tab', 'Space', 'Enter', 'Escape', 'F10', 'Shift', 'ArrowLeft', 'ArrowUp',
  'ArrowRight', 'ArrowDown', 'PageUp', 'PageDown', 'Home', 'End', 'c', 'r', 'g', 't', 'z'];

// The keyboard, the mouse and the wheel side by side.
function someEvents(engine, random, [width, height]) {
  const place = () => [random(width), random(height)];
  const some = (choose) => Array.from({ length: kAtOnce }, choose);
  return engine.act([
    device('key', 'keys', some(() =>
      stroke(random(3) > 0 ? 'keyDown' : 'keyUp', kKeys[random(kKeys.length)]))),
    device('pointer', 'walk', some(() => [to(place()), down, up][random(3)]), 'mouse'),
    device('wheel', 'wheel', some(() => turn(place(), 120 * (random(3) - 1)))),
  ]);
}

const kFramesAfterEnd = 5; // the test's own
const kEnded = "!document.getElementById('eikona')?.checkVisibility()";
// Nothing on the page leads away from it, but a browser has been found on the page before it, once
// in some hundred walks.
const kElsewhere = "typeof memoryOfProgram === 'undefined'";

export function testWalk(program) {
  const watched = copyWith('watched', kWatch);
  const mouse = new Pointing(program, 'mouse');

  test('a random walk breaks nothing and piles nothing up', async (context) => {
    context.diagnostic(`the random walk's kSeed: ${kSeed}`);
    const random = randomFrom(kSeed);
    const { engine } = program;
    const size = [1024, 600];
    await engine.resize(...size);
    await program.open(watched);
    let half = null;
    try {
      for (let events = 0; events < kEvents; events += 3 * kAtOnce) {
        await someEvents(engine, random, size);
        assert.deepEqual(await noise(engine), []);
        const elsewhere = await program.evaluate(kElsewhere);
        if (elsewhere) context.diagnostic(`gone to ${await program.evaluate('location.href')}`);
        if (elsewhere || await program.evaluate(kEnded)) await program.open(watched);
        if (events >= kEvents / 2) half ??= await engine.memory();
      }
      const whole = await engine.memory();
      const growth = whole.scripts - half.scripts;
      assert.ok(growth <= kMostGrowth, `${growth} bytes more`);
      assert.equal(whole.program, half.program);
    } finally {
      await engine.release();
      await engine.press('Shift'); // WebKit's driver leaves it down where it was pressed twice
    }
    await mouse.click('GUESSFORCE');
    await mouse.click('DYNAMEISDIAFORES');
    assert.equal((await program.state())['DYNAMEISDIAFORES checked'], true);
  });

  test('"end" ends everything, and says how to begin again', async () => {
    await program.open();
    await mouse.click('campyles');
    await mouse.click('Option2');
    await mouse.click('Command1');
    await mouse.click('TERMATISMOS');
    await program.waitFor(kEnded);
    assert.match(await program.evaluate('document.body.innerText'), /To begin again/);
    await program.evaluate(kCountFrames);
    await program.engine.resize(800, 600);
    await program.engine.press('F10');
    await program.frames(kFramesAfterEnd);
    assert.equal(await program.evaluate('framesAsked'), kFramesAfterEnd);
    assert.deepEqual(await noise(program.engine), []);
  });
}
