// Scroll bars. The browser's own has the keyboard, the value and what a screen reader needs of it;
// a pointer is told to the program, as each browser does something else of its own beside the
// thumb.
import { tell } from './program.js';
import { hear, keepFromBrowser, make } from './texts.js';

const kFirstRepeat = 400; // milliseconds
const kRepeat = 60;

// Where the pointer is along the bar, and how long that is.
function along(bar, { clientX, clientY }) {
  const { left, top, width, height } = bar.getBoundingClientRect();
  return width < height ? [clientY - top, height] : [clientX - left, width];
}

function pressBar(event) {
  const { currentTarget: bar, pointerId, button } = event;
  if (button !== 0 || bar.holder !== undefined) return;
  bar.holder = pointerId; // other fingers are not heard until it lets go
  bar.focus({ preventScroll: true });
  bar.setPointerCapture(pointerId);
  const zoom = Number(getComputedStyle(bar).getPropertyValue('--zoom'));
  const goOn = () => {
    if (bar.isConnected && tell(bar, 'Held')) bar.held = setTimeout(goOn, kRepeat);
  };
  if (tell(bar, 'Press', ...along(bar, event), zoom)) bar.held = setTimeout(goOn, kFirstRepeat);
}

function drag(event) {
  const bar = event.currentTarget;
  if (event.pointerId === bar.holder) tell(bar, 'Drag', along(bar, event)[0]);
}

function release({ currentTarget: bar, pointerId }) {
  if (pointerId !== bar.holder) return;
  clearTimeout(bar.held);
  bar.holder = undefined;
}

// A notch is 120. Browsers count it as 3 lines, or by pixels as they like, but then as 120 in
// wheelDelta. The mode is asked first: Firefox gives lines to those who do.
function turn(event) {
  if (event.ctrlKey) return; // it zooms the page
  event.preventDefault();
  const perUnit = [1, 40, 120][event.deltaMode];
  const turned = (delta, told) => (Math.abs(told) === 120 ? told : -delta * perUnit);
  tell(event.currentTarget, 'Wheel', turned(event.deltaX, event.wheelDeltaX),
    turned(event.deltaY, event.wheelDeltaY));
}

export function makeBar(orientation) {
  const bar = make('input', { type: 'range', 'aria-orientation': orientation });
  keepFromBrowser(bar);
  hear(bar, pressBar, 'pointerdown');
  hear(bar, drag, 'pointermove');
  hear(bar, release, 'pointerup', 'pointercancel', 'lostpointercapture');
  hear(bar, turn, 'wheel');
  return bar;
}
