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
  TellZoom(zoom, menuHeight) {
    root.style.setProperty('--zoom', zoom);
    root.style.setProperty('--menu', `${menuHeight}px`);
  },
  // In a frame that may not open boxes, alert returns at once, without a word. Then the text stands
  // on the page.
  ShowMessage(textFrom) {
    const text = textAt(textFrom);
    paint();
    const opened = performance.now();
    alert(text);
    if (window.self === window.top || performance.now() - opened > kAtOnce) return;
    const message = document.getElementById('message');
    message.textContent = text;
    message.hidden = false;
    announce(text);
  },
  Now: () => performance.now(),
  End() {
    life.abort();
    stop();
    const how = 'The program has ended. To begin again, load this page once more.';
    document.querySelector('main').replaceChildren(document.querySelector('h1'),
      make('p', { id: 'ended', role: 'status' }, how));
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
