// The page: starts the program, gives it its frames and its size, and ends it.
import { forProgram, hearUser } from './elements.js';
import { hearMenus } from './menus.js';
import { duties, load, program, stop, textAt, wake } from './program.js';
import { paint, sketchForProgram } from './sketch.js';
import { announce, make } from './texts.js';

const kAtOnce = 50; // milliseconds; nobody reads a message and closes it so fast
const life = new AbortController(); // ends with the program
const { signal } = life;
const root = document.documentElement;
const message = document.getElementById('message');
const unable = document.getElementById('unable');
let resized = false;

// What is seen of the page without scrolling. Its size may be broken when the page is zoomed.
function seen() {
  const { width, height } = root.getBoundingClientRect();
  return [Math.floor(width), Math.floor(height), devicePixelRatio];
}

function resize() {
  resized = true;
  wake();
}

function watchRatio() {
  const now = matchMedia(`(resolution: ${devicePixelRatio}dppx)`);
  now.addEventListener('change', () => { watchRatio(); resize(); }, { once: true, signal });
}

const pageForProgram = {
  TellZoom(zoom, ...lengths) {
    root.style.setProperty('--zoom', zoom);
    for (const name of ['menu', 'arrow', 'thumb']) {
      root.style.setProperty(`--${name}`, `${lengths.shift()}px`);
    }
  },
  // Where boxes may not be opened, as in some frames, alert returns at once, without a word. Then
  // the text stands on the page until the next press.
  ShowMessage(textFrom) {
    const text = textAt(textFrom);
    paint();
    const opened = performance.now();
    alert(text);
    if (performance.now() - opened > kAtOnce) return;
    message.textContent = text;
    message.hidden = false;
    announce(text);
    document.addEventListener('pointerdown', () => { message.hidden = true; }, { once: true });
  },
  Now: () => performance.now(),
  End() {
    life.abort();
    stop();
    const how = 'The program has ended. To begin again, load this page once more.';
    const ended = make('p', { id: 'ended', tabindex: -1 }, how);
    document.querySelector('main').replaceChildren(document.querySelector('h1'), ended);
    ended.focus(); // so that it is heard
  },
};

duties.unshift(() => {
  if (resized) program.Cover(...seen());
  resized = false;
  if (program.Frame()) wake();
  paint();
});

try {
  await load({ ...forProgram, ...sketchForProgram, ...pageForProgram });
  program.Start(...seen());
  unable.remove();
  hearUser(signal);
  hearMenus(signal);
  window.addEventListener('resize', resize, { signal });
  watchRatio();
  resize();
} catch (error) {
  unable.style.animation = 'none';
  throw error;
}
