// Sizes, ratios and their changes: everything is on the page, nothing is cut, no text covers
// another, and neither state nor picture is lost.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { copyWith } from '../../browsers/copy.mjs';
import { Pointing } from '../../browsers/program.mjs';
import { goTo, kWays } from './pictures.mjs';

const kSizes = [[640, 480], [800, 600], [1024, 600], [768, 1024], [1366, 768],
  [1080, 1920], [1920, 1080], [2560, 1440], [3840, 2160]];
const kSomeSizes = [[640, 480], [768, 1024], [1366, 768]]; // for the ratios beyond the first
const kUsual = [1366, 768];
const kPhones = [[390, 844], [844, 390]]; // so small that they may scroll

// What is outside the page or the window on it or cut off, what lies that should stand, and which
// texts meet. A page that may scroll holds what can be scrolled to.
const faults = (mayScroll) => `(() => {
  const found = [];
  const page = document.scrollingElement;
  const edge = ${mayScroll} ? [page.scrollWidth, page.scrollHeight] : [innerWidth, innerHeight];
  if (page.scrollWidth > edge[0] || page.scrollHeight > edge[1]) {
    found.push('the page scrolls: ' + [page.scrollWidth, page.scrollHeight, ...edge]);
  }
  const seen = [...document.querySelectorAll('main [id], main canvas')].filter((element) =>
    element.id !== 'live' && element.checkVisibility({ visibilityProperty: true }));
  const texts = [];
  // Its size is rounded down, that of what is in it is not.
  const shell = document.getElementById('shell').getBoundingClientRect();
  for (const element of seen) {
    const { left, top, right, bottom } = element.getBoundingClientRect();
    if (left + scrollX < 0 || top + scrollY < 0 || right + scrollX > edge[0] + 0.5 ||
        bottom + scrollY > edge[1] + 0.5 || right > shell.right + 1 ||
        bottom > shell.bottom + 1) {
      found.push(element.id + ' is outside: ' + [left, top, right, bottom]);
    }
    const { scrollWidth, clientWidth, scrollHeight, clientHeight } = element;
    const stands = element.getAttribute('aria-orientation') === 'vertical';
    if (element.matches('input') && stands !== (bottom - top > right - left)) {
      found.push(element.id + ' lies, or should not stand');
    }
    const holds = element.querySelector('[id]');
    if (!holds && clientWidth && (scrollWidth > clientWidth || scrollHeight > clientHeight)) {
      found.push(element.id + ' is cut: ' +
        [scrollWidth, clientWidth, scrollHeight, clientHeight]);
    }
    if (holds || element.matches('input, canvas')) continue;
    if (element.matches('textarea')) {
      texts.push({ id: element.id, box: element.getBoundingClientRect() });
      continue;
    }
    const range = document.createRange();
    range.selectNodeContents(element.querySelector('span:not(.spoken)') ?? element);
    texts.push(...[...range.getClientRects()].map((box) => ({ id: element.id, box })));
  }
  texts.forEach(({ id, box }, index) => {
    for (const other of texts.slice(index + 1)) {
      const wide = Math.min(box.right, other.box.right) - Math.max(box.left, other.box.left);
      const high = Math.min(box.bottom, other.box.bottom) - Math.max(box.top, other.box.top);
      if (id !== other.id && wide > 1 && high > 2) found.push(id + ' meets ' + other.id);
    }
  });
  return found;
})()`;

// The letters that are drawn for the sketch, and how many of their boxes have ink at an edge.
const kWatchLetters = `{
  globalThis.letters = { drawn: 0, cut: 0 };
  const { prototype } = CanvasRenderingContext2D;
  const get = prototype.getImageData;
  prototype.getImageData = function (...given) {
    const image = get.apply(this, given);
    const { data, width, height } = image;
    const inked = (x, y) => data[4 * (y * width + x)] < 128;
    const any = (count, test) => Array.from({ length: count }, (_, at) => at).some(test);
    letters.drawn += 1;
    letters.cut += any(width, (x) => inked(x, 0) || inked(x, height - 1)) ||
      any(height, (y) => inked(0, y) || inked(width - 1, y));
    return image;
  };
}`;

// One pixel of the picture is one of the screen's.
const kSharp = `((canvas, { width, height }) =>
  Math.abs(width * devicePixelRatio - canvas.width) < 0.5 &&
  Math.abs(height * devicePixelRatio - canvas.height) < 0.5)(document.getElementById('eikona'),
  document.getElementById('eikona').getBoundingClientRect())`;

async function resize(program, [width, height], ratio) {
  await program.engine.resize(width, height, ratio);
  await program.waitFor(`innerWidth === ${width} && devicePixelRatio === ${ratio}`);
  await program.frames(2);
  await program.waitFor(kSharp);
}

const placesFor = (ratios) => ratios.flatMap((ratio) =>
  (ratio === 1 ? kSizes : kSomeSizes).map((size) => ({ size, ratio })));

export function testLayout(program, ratios) {
  const mouse = new Pointing(program, 'mouse');

  async function check(size, context) {
    assert.deepEqual(await program.evaluate(faults(kPhones.includes(size))), [], context);
  }

  test('all is on the page, whatever its size, from start to end', async () => {
    for (const { size, ratio } of placesFor(ratios)) {
      await program.engine.resize(...size, ratio);
      await program.open();
      await check(size, `${size} at ${ratio}`);
      await mouse.click('campyles');
      await mouse.click('Option2');
      await check(size, `a run, ${size} at ${ratio}`);
    }
  });

  test('no letter on the sketch is cut', async () => {
    await program.engine.resize(...kUsual, ratios[0]);
    await program.open(copyWith('letters', kWatchLetters));
    await goTo(program, kWays.judgement);
    await program.frames(2);
    const { drawn, cut } = await program.evaluate('letters');
    assert.ok(drawn > 5, `${drawn} texts`);
    assert.equal(cut, 0);
  });

  test('a change of size or ratio keeps state and picture', async () => {
    await program.engine.resize(...kUsual, ratios[0]);
    await program.open();
    await mouse.click('campyles');
    await mouse.scroll('platosvalue', 24);
    await mouse.click('DYNAMEISDIAFORES');
    const state = await program.state();
    const phones = kPhones.map((size) => ({ size, ratio: ratios.at(-1) }));
    for (const { size, ratio } of [...placesFor(ratios).reverse(), ...phones]) {
      const context = `${size} at ${ratio}`;
      await resize(program, size, ratio);
      await check(size, context);
      assert.deepEqual(await program.state(), state, context);
      const { hash } = await program.look();
      await mouse.click('DYNAMEISDIAFORES');
      assert.equal((await program.look()).hash, hash, `the picture, ${context}`);
    }
  });
}
