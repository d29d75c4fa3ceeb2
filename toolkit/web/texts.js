// Texts: that they fit into their boxes, and that they are heard.
import { duties } from './program.js';

const kLeastShare = 0.6; // letters are never made smaller than this share of their size
export const shell = document.getElementById('shell');
export const client = document.getElementById('client');
const live = document.getElementById('live');
const changed = new Set(); // elements with another text or another size
let speaking = false; // since the last animation frame

export function make(tag, attributes = {}, ...inside) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  element.append(...inside);
  return element;
}

export function hear(element, listener, ...types) {
  for (const type of types) element.addEventListener(type, listener, { passive: false });
}

// The browser does nothing of its own with a press: it leaves the keyboard where it is, and neither
// scrolls nor opens anything. Two fingers it may take for a pinch.
export function keepFromBrowser(element) {
  hear(element, (event) => {
    if (event.cancelable && !(event.touches?.length > 1)) event.preventDefault();
  }, 'mousedown', 'touchstart', 'contextmenu');
}

export function fitLater(element) { changed.add(element); }

// A system's letters may be wider than those that the boxes were made for.
function fit() {
  const boxes = [...changed].filter(({ letters, kind }) => letters && kind !== 'Text');
  changed.clear();
  for (const { style, letters } of boxes) style.fontSize = `${letters}px`;
  const tooLarge = ({ scrollHeight, clientHeight, scrollWidth, clientWidth }) =>
    scrollHeight > clientHeight || scrollWidth > clientWidth;
  for (const box of boxes) {
    for (let share = 1; tooLarge(box) && share > kLeastShare; share -= 0.05) {
      box.style.fontSize = `${share * box.letters}px`;
    }
  }
}

// Says to a screen reader what has come up. What comes in one go stands side by side.
export function announce(text) {
  if (!speaking) live.replaceChildren();
  speaking = true;
  live.append(make('p', {}, text));
}
duties.push(fit, () => { speaking = false; });
