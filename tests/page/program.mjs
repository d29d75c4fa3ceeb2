// The program on a page: what there is to see of it, and the hands that work it.
import { kPage } from './copy.mjs';

const kInCases = ['DYNAMEISDIAFORES', 'GUESSFORCE'];
const kInMenu = ['XANAPISO', 'periptoseis', 'campyles', 'STAMATHMA', 'KSEKINA', 'TERMATISMOS'];
const kArrow = 14; // a bar's parts, in pixels of the program
const kThumb = 12;
const kInks = { black: [0, 0, 0], pink: [250, 0, 150], blue: [0, 0, 255], olive: [155, 155, 0] };

// How many pixels are white, or nearly of an ink, as lines are smooth; and a hash: FNV-1a over the
// components, in two halves, as these numbers have no 64 bits. It is kept, so that it gets fast.
const kLook = `(globalThis.look ??= () => {
  const canvas = document.getElementById('eikona');
  const { width, height } = canvas;
  const { data } = canvas.getContext('2d').getImageData(0, 0, width, height);
  const inks = Object.entries(${JSON.stringify(kInks)});
  const look = { white: 0, ...Object.fromEntries(inks.map(([name]) => [name, 0])) };
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
    if (data[at] + data[at + 1] + data[at + 2] === 765) ++look.white;
    else for (const [name, ink] of inks) if (near(ink, at)) ++look[name];
  }
  const hex = (half) => half.toString(16).padStart(8, '0');
  return { ...look, hash: hex(high) + hex(low), width, height, pixels: width * height };
})()`;

// What is shown, checked and selected, by the names of the table of cases.
const kState = `Object.fromEntries([...document.querySelectorAll('[id]')].flatMap((element) => {
  const mark = element.checked ?? element.getAttribute('aria-checked') === 'true';
  return [['shown', element.checkVisibility({ visibilityProperty: true })], ['checked', mark],
    ['selected', mark]].map(([kind, value]) => [element.id + ' ' + kind, value]);
}))`;

export class Program {
  // The engine is started later, when the tests begin.
  async open(url = kPage.href) {
    await this.engine.open(url);
    await this.waitFor("document.getElementById('Text1')?.value.startsWith('We examine')");
  }

  evaluate(expression) { return this.engine.evaluate(expression); }
  waitFor(expression) { return this.engine.waitFor(expression); }
  state() { return this.evaluate(kState); }
  explanation() { return this.evaluate("document.getElementById('Text1').value"); }
  told() { return this.evaluate("document.getElementById('live').textContent"); }
  focused() { return this.evaluate('document.activeElement.id'); }
  waitForTold(text) {
    return this.waitFor(`document.getElementById('live').textContent.includes(${JSON.stringify(text)})`);
  }

  // Waits until the browser has shown as many frames more.
  frames(count) {
    return this.evaluate(`new Promise((resolve) => {
      let left = ${count};
      const next = () => void (left-- > 0 ? requestAnimationFrame(next) : resolve(true));
      next();
    })`);
  }

  // The picture as it stands when the last event has been shown.
  async look() {
    await this.frames(2);
    return this.evaluate(kLook);
  }

  // Where a point of the sketch is on the page.
  place(x, y) {
    return this.evaluate(`((box) => [box.x + box.width * ${x / 20},
      box.y + box.height * ${(10 - y) / 20}])(document.getElementById('eikona')
      .getBoundingClientRect())`);
  }

  bar(id) {
    return this.evaluate(`(({ min, max, value }, { x, y, width, height }, style) => ({ x, y, width,
      height, min: Number(min), max: Number(max), value: Number(value),
      zoom: Number(style.getPropertyValue('--zoom')) }))(document.getElementById('${id}'),
      document.getElementById('${id}').getBoundingClientRect(),
      getComputedStyle(document.documentElement))`);
  }

  // Where a bar's thumb is when it stands at the value. Beyond the ends are the arrows.
  thumb({ x, y, width, height, min, max, zoom }, value) {
    const way = (value - min) / (max - min);
    const end = zoom * (kArrow + kThumb / 2);
    const along = (length) => end + way * (length - 2 * end);
    return height > width ? [x + width / 2, y + along(height)] : [x + along(width), y + height / 2];
  }
}

// A hand on a mouse, or a finger on the glass.
export class Pointing {
  constructor(program, kind) {
    Object.assign(this, { program, kind });
  }

  get pointer() { return this.program.engine.pointer(this.kind); }

  async click(id, times = 1) {
    if (kInCases.includes(id)) await this.click('periptoseis');
    await this.pointer.click(await this.program.engine.middle(id), times);
  }

  // Brings a bar to the value: the mouse by its wheel, the finger by its thumb.
  async scroll(id, value) {
    const bar = await this.program.bar(id);
    if (this.kind !== 'mouse') return this.drag(id, value);
    for (let turn = bar.value; turn !== value; turn += Math.sign(value - turn)) {
      await this.program.engine.wheel(this.program.thumb(bar, value), value > turn ? 120 : -120);
    }
    return undefined;
  }

  async drag(id, value) {
    const bar = await this.program.bar(id);
    await this.pointer.down(this.program.thumb(bar, bar.value));
    await this.pointer.move(this.program.thumb(bar, (bar.value + value) / 2),
      this.program.thumb(bar, value));
    await this.pointer.up();
  }

  // Presses at the first place of the sketch and lets go at the last.
  async pull(...points) {
    const places = [];
    for (const [x, y] of points) places.push(await this.program.place(x, y));
    await this.pointer.down(places[0]);
    await this.pointer.move(...places);
    await this.pointer.up();
  }
}

// Two hands on the keyboard alone.
export class Typing {
  constructor(program) { this.program = program; }

  get engine() { return this.program.engine; }

  async pressUntil(id, ...keys) {
    for (let times = 0; (await this.program.focused()) !== id; ++times) {
      if (times > 30) throw new Error(`${keys} never leads to ${id}`);
      await this.engine.press(...keys);
    }
  }

  key(type, name) { return this.engine.key(type, name); }

  // Presses a key again and again.
  times(count, name) { return this.engine.key(Array(count).fill(['keyDown', 'keyUp']).flat(), name); }

  async click(id, times = 1) {
    if (kInCases.includes(id)) {
      await this.engine.press('F10');
      await this.pressUntil('periptoseis', 'ArrowRight');
      await this.engine.press('ArrowDown');
      await this.pressUntil(id, 'ArrowDown');
      await this.engine.press('Enter');
    } else if (kInMenu.includes(id)) {
      await this.engine.press('F10');
      await this.pressUntil(id, 'ArrowRight');
      await this.engine.press('Enter');
    } else if (id.startsWith('Option')) {
      await this.option(id);
    } else {
      await this.pressUntil(id, 'Tab');
      await this.times(times, 'Space');
    }
  }

  // Of the options only one is a stop of the tab key; an arrow key leads to the other and takes it.
  async option(id) {
    for (let times = 0; !(await this.program.focused()).startsWith('Option'); ++times) {
      if (times > 30) throw new Error('Tab never leads to an option');
      await this.engine.press('Tab');
    }
    const there = (await this.program.focused()) === id;
    await this.engine.press(there ? 'Space' : 'ArrowDown');
  }

  async scroll(id, value) {
    await this.pressUntil(id, 'Tab');
    const { value: now } = await this.program.bar(id);
    await this.times(Math.abs(value - now), value > now ? 'ArrowRight' : 'ArrowLeft');
  }
}

// What the page has said to nobody in particular, and whom it has asked for anything.
export async function noise(engine) {
  const { console: said, errors, dialogs, requests } = await engine.seen();
  return [...said, ...errors, ...dialogs, ...requests.filter((url) => !/^(file|data):/.test(url))];
}
