// The elements of the page, as the program asks for them, and what the user does to them.
import { makeBar } from './bars.js';
import { addItem } from './menus.js';
import { program, shiftOf, tell, textAt } from './program.js';
import { makeSketch } from './sketch.js';
import { announce, client, fitLater, make, shell } from './texts.js';

const kKeys = ['ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown', 'PageUp', 'PageDown', 'Home',
  'End', 'Enter', ' ', 'Escape', 'Shift']; // in the order of the program's KeyCodes; others follow
const options = make('div', { role: 'radiogroup', 'aria-label': 'Case', hidden: '' });
const elements = []; // by number

const item = (role) => ['Item', () => make('div', { role, tabindex: -1 })];
const kinds = { // with the name under which the program hears of them
  Window: ['Window', () => shell],
  Label: ['Label', () => make('p', {}, make('span', { class: 'spoken' }), make('span'))],
  Button: ['Button', () => make('button', { type: 'button' })],
  Text: ['Text', () => make('textarea', { spellcheck: 'false' })],
  Option: ['Option', () => make('div', { role: 'radio', tabindex: 0 })],
  Bar: ['Bar', () => makeBar('horizontal')],
  UprightBar: ['Bar', () => makeBar('vertical')],
  Sketch: ['Sketch', makeSketch],
  Menu: item('menuitem'),
  Command: item('menuitem'),
  Check: item('menuitemcheckbox'),
};

const showText = { // by kind; the text of all others is what is in them
  Window(_, text) { document.title = document.querySelector('h1').textContent = text; },
  Text(element, text) {
    if (element.value === text) return;
    if (!shell.hidden) announce(text);
    element.value = text;
  },
  Label(element, text) {
    element.lastChild.textContent = text;
    const language = /\p{Script=Greek}/u.test(text) ? 'el' : 'en';
    if (element.lang !== language) element.lang = language;
  },
};

const setters = { // all else is an attribute
  text(element, text) {
    if (showText[element.kind]) showText[element.kind](element, text);
    else element.textContent = text;
    fitLater(element);
  },
  hidden(element, truth) {
    element.hidden = truth === 'true';
    options.hidden = !options.querySelector(':not([hidden])');
    fitLater(element); // while it was hidden, it could not be measured
  },
  // A label tells its name before its text, everything else instead of it.
  name(element, name) {
    if (element.kind === 'Label') element.firstChild.textContent = `${name}: `;
    else element.setAttribute('aria-label', name);
  },
  value(element, value) { if (element.value !== value) element.value = value; },
  description(_, text) { document.getElementById('seen').textContent = text; },
  // The first such letter of the text is the one to press.
  mnemonic(element, letter) {
    const [head, ...tail] = element.textContent.split(letter);
    element.replaceChildren(make('span', {}, head, make('u', {}, letter), tail.join(letter)));
    element.setAttribute('aria-keyshortcuts', `Alt+${letter.toUpperCase()}`);
  },
};

export const forProgram = {
  Make(kindAt, nameAt, inside) {
    const kind = textAt(kindAt);
    const [name, create] = kinds[kind];
    const element = Object.assign(create(), { kind: name, at: elements.length });
    elements.push(element);
    if (element === shell) return element.at;
    element.id = textAt(nameAt);
    if (name === 'Item') addItem(element, inside ? elements[inside] : null, kind === 'Menu');
    else (name === 'Option' ? options : client).append(element);
    if (name === 'Option') client.append(options);
    return element.at;
  },
  Set(at, whatAt, valueAt) {
    const element = elements[at];
    const what = textAt(whatAt);
    const value = textAt(valueAt);
    if (setters[what]) setters[what](element, value);
    else element.setAttribute(what, value);
  },
  // A bar that stands upright is one that lies, turned by a quarter: so it is in every browser.
  Place(at, left, top, width, height, letters) {
    const element = elements[at];
    const box = [left, top, width, height, letters].join();
    if (element.box === box) return;
    element.box = box;
    const upright = element.getAttribute('aria-orientation') === 'vertical';
    const [long, short] = upright ? [height, width] : [width, height];
    Object.assign(element.style, { left: `${left}px`, top: `${top}px`, width: `${long}px`,
      height: `${short}px`, fontSize: `${letters}px`,
      transform: upright ? `translateX(${width}px) rotate(90deg)` : '' });
    element.letters = letters;
    fitLater(element);
  },
  GiveFocus(nameAt) { document.getElementById(textAt(nameAt)).focus(); },
  Announce(textFrom) { announce(textAt(textFrom)); },
};

// The element that an event is for: itself or what it is in.
function ownerOf({ target }) {
  let element = target;
  while (element && !element.kind) element = element.parentElement;
  return element;
}

// What a key does together with these belongs to the browser: Alt and an arrow lead back a page.
const isBrowsers = ({ altKey, ctrlKey, metaKey, target }) =>
  altKey || metaKey || (ctrlKey && target.kind === 'Bar');

function hearKey(event) {
  if (event.type === 'keydown' && isBrowsers(event)) return;
  const place = kKeys.indexOf(event.key);
  const code = place < 0 ? kKeys.length : place;
  const what = event.type === 'keyup' ? 'KeyUp' : 'Key';
  if (tell(ownerOf(event), what, code, shiftOf(event), event.repeat)) event.preventDefault();
}

function hearInput({ target }) {
  if (target.kind === 'Bar') tell(target, 'Scroll', Number(target.value));
  if (target.kind !== 'Text') return;
  const bytes = new TextEncoder().encode(target.value);
  const room = program.TextRoom(bytes.length);
  new Uint8Array(program.memory.buffer).set(bytes, room);
  tell(target, 'Edit');
}

export function hearUser(signal) {
  const hear = (event, listener) => document.addEventListener(event, listener, { signal });
  hear('click', (event) => tell(ownerOf(event), 'Click'));
  hear('input', hearInput);
  hear('keydown', hearKey);
  hear('keyup', hearKey);
}
