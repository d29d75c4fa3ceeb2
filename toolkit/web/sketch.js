// The sketch: the picture that the program has drawn, the letters on it, the pointer over it.
import { program, shiftOf, tell, textAt, wake } from './program.js';
import { hearShift, isShiftDown, useShift } from './shift.js';
import { hear, keepFromBrowser, make } from './texts.js';

const kButtons = [1, 2, 4, 8, 16]; // left, right, middle, ..., for pointers and the program alike
const kCursors = ['default', 'crosshair', 'pointer', 'grabbing']; // in the program's order
const canvas = make('canvas', { tabindex: 0, role: 'application', 'aria-describedby': 'seen' });
const shown = canvas.getContext('2d', { alpha: false });
// Not opaque: letters on an opaque canvas have coloured edges in some browsers.
const pen = make('canvas').getContext('2d', { willReadFrequently: true });
let stale = true;
let focused = false;
let held = 0; // the buttons that were pressed here
let holder = null; // the pointer that has pressed them; others are not heard meanwhile
let place = null; // of the pointer over the picture

export function paint() {
  if (place) canvas.style.cursor = kCursors[program.SketchCursor(canvas.at, ...place)];
  if (!stale) return;
  stale = false;
  const at = program.Look(focused);
  const { width, height } = canvas;
  const pixels = new Uint8ClampedArray(program.memory.buffer, at, 4 * width * height);
  shown.putImageData(new ImageData(pixels, width, height), 0, 0);
}

function repaint() {
  stale = true;
  wake();
}

// The font of the window, in which there are Greek letters; a line from its ascent to its descent.
function drawLetters(textFrom, size, colour) {
  const text = textAt(textFrom);
  const font = `${size}px ${getComputedStyle(canvas).fontFamily}`;
  pen.font = font;
  const ink = pen.measureText(text);
  const ascent = Math.ceil(ink.fontBoundingBoxAscent);
  const height = ascent + Math.ceil(ink.fontBoundingBoxDescent);
  const left = Math.ceil(Math.max(ink.actualBoundingBoxLeft, 0)) + 1;
  const width = left + Math.ceil(Math.max(ink.actualBoundingBoxRight, ink.width)) + 1;
  if (pen.canvas.width < width) pen.canvas.width = width;
  if (pen.canvas.height < height) pen.canvas.height = height;
  pen.font = font; // a canvas forgets it with its size
  pen.fillStyle = 'white';
  pen.fillRect(0, 0, width, height);
  pen.fillStyle = `#${colour.toString(16).padStart(6, '0')}`;
  pen.fillText(text, left, ascent);
  const { data } = pen.getImageData(0, 0, width, height);
  const room = program.Tile(width, height, -left);
  new Uint8Array(program.memory.buffer).set(data, room);
}

// All that pointers do comes here. A button of the mouse that is pressed or let go while another
// one is held comes as a move.
function follow(event) {
  if (holder !== null && event.pointerId !== holder) return;
  const box = canvas.getBoundingClientRect();
  const scale = canvas.width / box.width;
  place = [(event.clientX - box.left) * scale, (event.clientY - box.top) * scale];
  wake();
  const moves = event.type === 'pointermove';
  const now = moves && held === 0 ? 0 : event.buttons;
  for (const button of kButtons.filter((one) => (now ^ held) & one)) {
    const bits = shiftOf(event) | isShiftDown();
    tell(canvas, now & button ? 'Press' : 'Release', button, bits, ...place);
    if (!(now & button)) useShift();
  }
  if (now && !held) canvas.setPointerCapture(event.pointerId);
  held = now;
  holder = now ? event.pointerId : null;
}

function cancel({ pointerId }) {
  if (pointerId !== holder) return;
  held = 0;
  holder = null;
  tell(canvas, 'Cancel');
}

export function makeSketch() {
  keepFromBrowser(canvas);
  hear(canvas, follow, 'pointerdown', 'pointermove', 'pointerup');
  hear(canvas, cancel, 'pointercancel');
  hear(canvas, () => { place = null; }, 'pointerleave');
  hear(canvas, ({ type }) => {
    focused = type === 'focus';
    repaint();
    if (!focused) tell(canvas, 'Blur');
  }, 'focus', 'blur');
  hearShift();
  return canvas;
}

export const sketchForProgram = { DrawLetters: drawLetters, Repaint: repaint };
