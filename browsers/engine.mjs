// The words by which a browser is used, the same for all three engines. What an engine brings
// itself stands in bidi.mjs and webkit.mjs: open, evaluate, resize, act, accessible and so on. What
// it or its driver can't do is in its `limits`, and a test asks there.
import { setTimeout as pause } from 'node:timers/promises';

const kPatience = 30000; // milliseconds
const kKeys = {
  Shift: '\uE008', Control: '\uE009', Alt: '\uE00A', Enter: '\uE007', Tab: '\uE004', Space: ' ',
  Escape: '\uE00C', PageUp: '\uE00E', PageDown: '\uE00F', End: '\uE010', Home: '\uE011',
  ArrowLeft: '\uE012', ArrowUp: '\uE013', ArrowRight: '\uE014', ArrowDown: '\uE015', F10: '\uE03A',
};

// What one device does, one thing after the other: what an engine's act takes a list of.
const at = ([x, y]) => ({ x: Math.round(x), y: Math.round(y), origin: 'viewport' });
export const to = (place) => ({ type: 'pointerMove', duration: 0, ...at(place) });
export const down = { type: 'pointerDown', button: 0 };
export const up = { type: 'pointerUp', button: 0 };
export const stroke = (type, key) => ({ type, value: kKeys[key] ?? key });
export const turn = (place, deltaY) =>
  ({ type: 'scroll', deltaX: 0, deltaY, duration: 0, ...at(place) });
export const device = (type, id, actions, pointerType) =>
  ({ type, id, actions, ...(pointerType && { parameters: { pointerType } }) });

export class Engine {
  // Until the expression, or what the function gives, is true.
  async waitFor(what) {
    const holds = typeof what === 'string' ? () => this.evaluate(what) : what;
    for (const end = Date.now() + kPatience; !(await holds()); await pause(10)) {
      if (Date.now() > end) throw new Error(`waited in vain for ${what}`);
    }
  }

  // Types are keyDown and keyUp, one or several after each other.
  key(types, key) {
    return this.act([device('key', 'keys', [types].flat().map((type) => stroke(type, key)))]);
  }

  // Presses a key while the ones before it are held down: press('Alt', 'c').
  press(...keys) {
    const downs = keys.map((key) => stroke('keyDown', key));
    const ups = keys.map((key) => stroke('keyUp', key)).reverse();
    return this.act([device('key', 'keys', [...downs, ...ups])]);
  }

  // A mouse, a pen or a touch; pointer('touch', 'second') is one more finger. It stays where it is
  // and as it is from call to call. Places are CSS pixels of what is to be seen.
  pointer(kind, name = 'first') {
    const send = (...actions) => this.act([device('pointer', `${name} ${kind}`, actions, kind)]);
    return {
      move: (...places) => send(...places.map(to)),
      down: (place) => send(to(place), down),
      up: () => send(up),
      click: (place, times = 1) => send(to(place), ...Array(times).fill([down, up]).flat()),
    };
  }

  // Each time with another wheel: WebKit's driver sends by how much more one turns than before.
  wheel(place, deltaY) {
    this.wheels = (this.wheels ?? 0) + 1;
    return this.act([device('wheel', `wheel ${this.wheels}`, [turn(place, deltaY)])]);
  }

  // Bytes in use: by the page's scripts, where the engine tells it, and of a copy's program.
  async memory() {
    return { scripts: 0, program: await this.evaluate('memoryOfProgram.buffer.byteLength') };
  }

  // Where the element is on what is to be seen.
  box(id) {
    return this.evaluate(`(({ x, y, width, height }) => ({ x, y, width, height }))(
      document.getElementById('${id}').getBoundingClientRect())`);
  }

  // The middle of the element, as a place to point at.
  async middle(id) {
    const { x, y, width, height } = await this.box(id);
    return [x + width / 2, y + height / 2];
  }
}
