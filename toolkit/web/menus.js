// The menu bar and its drop-downs, by the usual pattern of a menu bar on a page. Who had the
// keyboard before gets it back.
import { make } from './texts.js';

const menubar = document.getElementById('menubar');
const kItem = '[role^=menuitem]';
let before = null;

export function addItem(item, owner, opens) {
  const place = owner ? owner.nextSibling : menubar;
  if (opens) {
    const list = make('div', { role: 'menu', 'aria-labelledby': item.id, hidden: '' });
    place.append(make('div', { role: 'none' }, item, list));
    item.setAttribute('aria-haspopup', 'menu');
    item.setAttribute('aria-expanded', 'false');
  } else {
    place.append(item);
  }
  if (item === menubar.querySelector(kItem)) item.tabIndex = 0;
}

const listOf = (item) => item.closest('[role=menu]');
const opensList = (item) => item.hasAttribute('aria-haspopup');
const openItem = () => menubar.querySelector('[aria-expanded=true]');
// The items of the bar, or of a drop-down.
const rowOf = (list) =>
  [...(list ?? menubar).querySelectorAll(kItem)].filter((item) => listOf(item) === list);
const byLetter = (row, key) =>
  row.find((item) => item.querySelector('u')?.textContent.toLowerCase() === key.toLowerCase());

function close() {
  const item = openItem();
  if (!item) return;
  item.setAttribute('aria-expanded', 'false');
  item.nextSibling.hidden = true;
}

function open(item, place) {
  close();
  item.setAttribute('aria-expanded', 'true');
  item.nextSibling.hidden = false;
  rowOf(item.nextSibling).at(place).focus();
}

function leave() {
  if (menubar.contains(document.activeElement)) {
    if (before) before.focus({ preventScroll: true });
    else document.activeElement.blur();
  }
  close();
}

function choose(item) {
  if (opensList(item)) open(item, 0);
  else item.click();
}

function clickItem({ target }) {
  const item = target.closest(kItem);
  if (!item || !opensList(item)) leave();
  else if (item === openItem()) close();
  else open(item, 0);
}

function pressItem(event) {
  const item = event.target.closest(kItem);
  if (event.altKey || event.ctrlKey || event.metaKey) return;
  const list = listOf(item);
  const owner = list ? list.previousSibling : item;
  const row = rowOf(list);
  const beside = (from, among, by) => among.at((among.indexOf(from) + by) % among.length);
  const along = (by) => {
    const next = beside(owner, rowOf(null), by);
    if (list && opensList(next)) open(next, 0);
    else next.focus();
  };
  const down = (by, place) => {
    if (list) beside(item, row, by).focus();
    else if (opensList(item)) open(item, place);
  };
  const named = byLetter(row, event.key);
  const actions = {
    ArrowLeft: () => along(-1),
    ArrowRight: () => along(1),
    ArrowUp: () => down(-1, -1),
    ArrowDown: () => down(1, 0),
    Home: () => row[0].focus(),
    End: () => row.at(-1).focus(),
    Enter: () => event.repeat || choose(item),
    ' ': () => event.repeat || choose(item),
    Escape: () => (list ? (owner.focus(), close()) : leave()),
  };
  const act = actions[event.key] ?? (named && (() => choose(named)));
  if (!act) return;
  event.preventDefault();
  act();
}

function pressAnywhere(event) {
  const named = event.altKey && !event.ctrlKey && byLetter(rowOf(null), event.key);
  const plain = !event.altKey && !event.ctrlKey && !event.metaKey && !event.shiftKey;
  if (!named && !(event.key === 'F10' && plain)) return;
  event.preventDefault();
  if (named) choose(named);
  else if (menubar.contains(document.activeElement)) leave();
  else rowOf(null)[0].focus();
}

export function hearMenus(signal) {
  menubar.addEventListener('click', clickItem);
  menubar.addEventListener('keydown', pressItem);
  menubar.addEventListener('focusin', ({ target, relatedTarget }) => {
    if (!menubar.contains(relatedTarget)) before = relatedTarget;
    if (listOf(target)) return;
    if (target !== openItem()) close();
    for (const item of rowOf(null)) item.tabIndex = item === target ? 0 : -1; // where Tab comes to
  });
  menubar.addEventListener('focusout', ({ relatedTarget }) => {
    if (!menubar.contains(relatedTarget)) close();
  });
  document.addEventListener('keydown', pressAnywhere, { signal });
  document.addEventListener('pointerdown', ({ target }) => {
    if (!menubar.contains(target)) leave();
  }, { signal });
}
