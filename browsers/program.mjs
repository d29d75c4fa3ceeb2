// The program on a page: what there is to see of it, and the hands that work it.
import assert from 'node:assert/strict';
import { isDeepStrictEqual } from 'node:util';

import { kPage } from './copy.mjs';

const kInCases = ['DYNAMEISDIAFORES', 'GUESSFORCE'];
const kInMenu = ['XANAPISO', 'periptoseis', 'campyles', 'STAMATHMA', 'KSEKINA', 'TERMATISMOS'];
const kArrow = 14; // a bar's parts, in pixels of the program
const kThumb = 12;
const kInks = { black: [0, 0, 0], pink: [250, 0, 150], blue: [0, 0, 255], olive: [155, 155, 0] };

// Whether all is white; how many pixels are nearly of an ink, as lines are smooth; and a hash:
// FNV-1a over the components, in two halves, as these numbers have no 64 bits. It is kept, so that
// it gets fast.
const kLook = `(globalThis.look ??= () => {
  const canvas = document.getElementById('eikona');
  const { width, height } = canvas;
  const { data } = canvas.getContext('2d').getImageData(0, 0, width, height);
  const inks = Object.entries(${JSON.stringify(kInks)});
  const look = { blank: true, ...Object.fromEntries(inks.map(([name]) => [name, 0])) };
  const near = (ink, at) => Math.abs(data[at] - ink[0]) + Math.abs(data[at + 1] - ink[1]) +
    Math.abs(data[at + 2] - ink[2]) < 60;
  let low = 0x84222325, high = 0xcbf29ce4;
  for (let at = 0; at < data.length; at += 4) {
    for (let part = at; part < at + 3; ++part) {
      low = (low ^ data[part]) >>> 0;
      const product = low * 0x1b3;
      high = (Math.imul(high, 0x1b3) + (product - (product >>> 0)) / 2 ** 32 + (low << 8)) >>> 0;
      low = product >>> 0;
    }
    if (data[at] + data[at + 1] + data[at + 2] === 765) continue;
    look.blank = false;
    for (const [name, ink] of inks) if (near(ink, at)) ++look[name];
  }
  const hex = (half) => half.toString(16).padStart(8, '0');
  return { ...look, hash: hex(high) + hex(low), width };
})()`;

// What is shown, checked, selected and set, by the names of the table of cases.
const kState = `Object.fromEntries([...document.querySelectorAll('[id]')].flatMap((element) => {
  const mark = element.checked ?? element.getAttribute('aria-checked') === 'true';
  const shown = element.checkVisibility({ visibilityProperty: true });
  return Object.entries({ shown, checked: mark, selected: mark, value: element.value })
    .map(([kind, value]) => [element.id + ' ' + kind, value]);
}))`;

export class Program {
  // The engine is started later, when the tests begin.
  async open(url = kPage.href) {
    await this.engine.open(url);
    await this.begun();
  }

  evaluate(expression) { return this.engine.evaluate(expression); }
  waitFor(expression) { return this.engine.waitFor(expression); }
  begun() {
    return this.waitFor("document.getElementById('Text1')?.value.startsWith('We examine')");
  }

  state() { return this.evaluate(kState); }
  explanation() { return this.evaluate("document.getElementById('Text1').value"); }
  value(id) { return this.evaluate(`Number(document.getElementById('${id}').value)`); }
  focused() { return this.evaluate('document.activeElement.id'); }
  told() { return this.evaluate("document.getElementById('live').textContent"); }
  waitForTold(text) {
    return this.waitFor(`document.getElementById('live').textContent.includes('${text}')`);
  }

  // Compares parts of what a screen reader is told of elements, which comes a moment later.
  async checkTold(wanted, context) {
    const told = {};
    const isTold = async () => {
      for (const [id, parts] of Object.entries(wanted)) {
        const all = (await this.engine.accessible(id)) ?? {};
        told[id] = Object.fromEntries(Object.keys(parts).map((part) => [part, all[part]]));
      }
      return isDeepStrictEqual(told, wanted);
    };
    await this.engine.waitFor(isTold).catch(() => assert.deepEqual(told, wanted, context));
  }

  // Waits until the browser has shown as many frames more.
  frames(count) {
    return this.evaluate(`(async () => {
      for (let left = ${count}; left > 0; --left) await new Promise(requestAnimationFrame);
    })()`);
  }

  // The picture as it stands when the last event has been shown.
  async look() {
    await this.frames(2);
    return this.evaluate(kLook);
  }

  // Where a point of the sketch is on the page.
  async place([x, y]) {
    const box = await this.engine.box('eikona');
    return [box.x + (box.width * x) / 20, box.y + (box.height * (10 - y)) / 20];
  }

  // Where a bar's thumb is when it stands at the value.
  async thumb(id, value) {
    const { x, y, width, height } = await this.engine.box(id);
    const [way, end] = await this.evaluate(`((bar) => [(${value} - bar.min) / (bar.max - bar.min),
      getComputedStyle(bar).getPropertyValue('--zoom') * ${kArrow + kThumb / 2}])(
      document.getElementById('${id}'))`);
    const along = (length) => end + way * (length - 2 * end);
    return height > width ? [x + width / 2, y + along(height)] : [x + along(width), y + height / 2];
  }

  // In the arrow before a bar's trough, at the left or at the top, or in the one after it.
  async arrow(id, where) {
    const { x, y, width, height } = await this.engine.box(id);
    const inside = Math.min(width, height) / 4;
    return where === 'before'
      ? [x + inside, y + inside]
      : [x + width - inside, y + height - inside];
  }
}

// A hand on a mouse or a pen, or a finger on the glass.
export class Pointing {
  constructor(program, kind) {
    Object.assign(this, { program, kind });
  }

  get pointer() { return this.program.engine.pointer(this.kind); }

  async click(id, times = 1) {
    if (kInCases.includes(id)) await this.click('periptoseis');
    await this.pointer.click(await this.program.engine.middle(id), times);
  }

  // Brings a bar to the value by its thumb.
  async scroll(id, value) {
    const now = await this.program.value(id);
    await this.pointer.down(await this.program.thumb(id, now));
    await this.pointer.move(await this.program.thumb(id, (now + value) / 2),
      await this.program.thumb(id, value));
    await this.pointer.up();
  }

  // Presses at one place of the sketch and lets go at another.
  async pull(from, to) {
    await this.pointer.down(await this.program.place(from));
    await this.pointer.move(await this.program.place(to));
    await this.pointer.up();
  }
}

// Two hands on the keyboard alone.
export class Typing {
  constructor(program) { this.program = program; }

  get engine() { return this.program.engine; }

  // Until that has the keyboard whose name begins so.
  async pressUntil(id, key) {
    for (let times = 0; !(await this.program.focused()).startsWith(id); ++times) {
      if (times > 30) throw new Error(`${key} never leads to ${id}`);
      await this.engine.press(key);
    }
  }

  key(type, name) { return this.engine.key(type, name); }

  // Presses a key again and again.
  times(count, name) { return this.key(Array(count).fill(['keyDown', 'keyUp']).flat(), name); }

  async click(id, times = 1) {
    if (kInCases.includes(id)) {
      await this.click('periptoseis');
      await this.pressUntil(id, 'ArrowDown');
      await this.engine.press('Enter');
    } else if (kInMenu.includes(id)) {
      await this.engine.press('F10');
      await this.pressUntil(id, 'ArrowRight');
      await this.engine.press('Enter');
    } else if (id.startsWith('Option')) {
      // An arrow key leads to the other one and takes it.
      await this.pressUntil('Option', 'Tab');
      await this.engine.press((await this.program.focused()) === id ? 'Space' : 'ArrowDown');
    } else {
      await this.pressUntil(id, 'Tab');
      await this.times(times, 'Space');
    }
  }

  async scroll(id, value) {
    await this.pressUntil(id, 'Tab');
    const now = await this.program.value(id);
    await this.times(Math.abs(value - now), value > now ? 'ArrowRight' : 'ArrowLeft');
  }
}

// What the page has said to nobody in particular, and whom it has asked for anything.
export async function noise(engine) {
  const { console: said, errors, dialogs, requests } = await engine.seen();
  return [...said, ...errors, ...dialogs, ...requests.filter((url) => !/^(file|data):/.test(url))];
}
