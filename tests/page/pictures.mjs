// The pictures that the native tests know by their hashes, come to by a user's way: each engine
// must draw them pixel by pixel the same.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { copyWith } from '../../browsers/copy.mjs';
import { Typing } from '../../browsers/program.mjs';
import { readPictures } from './table.mjs';

// At ratio 1 the native tests have so large a screen.
const kScreen = [1366, 768];

// The same ways as in pictures.h, by the keyboard, with what is needed to reach what is hidden.
const kToSketch = ['pressUntil', 'eikona', 'Tab'];
const kFromSketch = ['pressUntil', 'Text1', 'Tab']; // takes the keyboard's point off the picture
const kToRun = [['click', 'campyles'], ['click', 'Option2']];
export const kWays = {
  opening: [],
  factors: [['click', 'campyles'], ['click', 'Option3']],
  'factors, the body stops': [['scroll', 'syxnotikamp', 40], ['scroll', 'epitaxyno', -4]],
  point: [['click', 'DYNAMEISDIAFORES'], kToSketch, ['times', 8, 'ArrowRight'],
    ['times', 1, 'Enter'], kFromSketch],
  judgement: [['click', 'GUESSFORCE'], kToSketch, ['key', 'keyDown', 'Shift'],
    ['times', 14, 'ArrowRight'], ['times', 4, 'ArrowUp'], ['key', 'keyUp', 'Shift'],
    kFromSketch],
  run: [['scroll', 'arxikives', 1], ['scroll', 'epitaxyno', 2], ...kToRun,
    ['scroll', 'vimatimi', 20], ['click', 'VIMA', 130]],
  'run over another, with other marks': [...kToRun, ['scroll', 'vimatimi', 20],
    ['click', 'VIMA', 40], ['click', 'XANAPISO'], ['scroll', 'platosvalue', 30],
    ['click', 'Option2'], ['click', 'VIMA', 50], ['scroll', 'vimatimi', 11], ['click', 'VIMA', 30],
    ['click', 'Command1'], ['click', 'VIMA', 20]],
};

// The letters of toolkit/headless/stand_in_letters.cpp, by the calls that the page makes. Time
// stands still, so that no run takes a step by itself.
const kStandIn = `{
  performance.now = () => 0;
  const { prototype } = CanvasRenderingContext2D;
  const bytesOf = (text) => new TextEncoder().encode(text);
  const sizeOf = (pen) => parseInt(pen.font, 10);
  const wideOf = (pen) => Math.max(1, Math.floor(sizeOf(pen) / 2));
  prototype.measureText = function (text) {
    const width = bytesOf(text).length * wideOf(this);
    return { width, actualBoundingBoxLeft: 0, actualBoundingBoxRight: width,
      fontBoundingBoxAscent: sizeOf(this), fontBoundingBoxDescent: 0 };
  };
  prototype.fillText = function (text, left, bottom) {
    const top = bottom - sizeOf(this);
    const wide = wideOf(this);
    bytesOf(text).forEach((byte, at) => {
      for (let y = top; y < bottom; ++y) {
        for (let x = 0; x < wide; ++x) {
          if ((byte >> ((x + y - top) % 8)) & 1) this.fillRect(left + at * wide + x, y, 1, 1);
        }
      }
    });
  };
}`;

export async function goTo(program, way) {
  const keys = new Typing(program);
  for (const [what, ...values] of way) await keys[what](...values);
}

export function testPictures(program, ratios) {
  const copy = copyWith('stand-in', kStandIn);
  const known = readPictures();
  const knownRatios = ratios.filter((ratio) => `opening at ${ratio}` in known);

  for (const ratio of knownRatios) {
    test(`the pictures are the native ones, at ratio ${ratio}`, async () => {
      const drawn = {};
      const wanted = Object.entries(known).filter(([name]) => name.endsWith(` at ${ratio}`));
      await program.engine.resize(...kScreen, ratio);
      for (const [name, way] of Object.entries(kWays)) {
        await program.open(copy);
        await goTo(program, way);
        drawn[`${name} at ${ratio}`] = (await program.look()).hash;
      }
      assert.deepEqual(drawn, Object.fromEntries(wanted));
    });
  }
}
