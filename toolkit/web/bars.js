// Scroll bars. The browser's own has the keyboard, the value and what a screen reader needs of it;
// the pointer is followed here, as each browser does something else of its own beside the thumb.
import { tell } from './program.js';
import { keepFromBrowser, make } from './texts.js';

const kArrow = 14; // lengths of its parts, in the program's pixels; they stand in the style, too
const kThumb = 12;
const kFirstRepeat = 400; // milliseconds
const kRepeat = 60;

// The lengths along the bar: where the pointer is, where the way of the thumb begins, how long that
// is, and how far along it the thumb is.
function measure(bar, { clientX, clientY }) {
  const { left, top, width, height } = bar.getBoundingClientRect();
  const zoom = Number(getComputedStyle(bar).getPropertyValue('--zoom'));
  const [place, length] = width < height ? [clientY - top, height] : [clientX - left, width];
  const way = length - (2 * kArrow + kThumb) * zoom;
  const thumb = (way * (bar.value - bar.min)) / (bar.max - bar.min);
  return { place: place - kArrow * zoom, way, thumb, thumbLength: kThumb * zoom };
}

function pressBar(event) {
  const { currentTarget: bar, pointerId, button } = event;
  if (button !== 0 || bar.holder !== undefined) return;
  bar.holder = pointerId; // other fingers are not heard until it lets go
  bar.focus({ preventScroll: true });
  bar.setPointerCapture(pointerId);
  const { place, way, thumb, thumbLength } = measure(bar, event);
  const side = place < thumb ? -1 : Number(place >= thumb + thumbLength);
  if (side === 0) {
    bar.grip = place - thumb;
    return;
  }
  const beside = place >= 0 && place < way + thumbLength; // else it is an arrow
  // Held, it goes on until the thumb has come to the pointer.
  const go = (pause) => {
    if (!bar.isConnected) return; // the program has ended meanwhile
    const now = measure(bar, event).thumb;
    if (beside && (side < 0 ? place >= now : place < now + thumbLength)) return;
    tell(bar, beside ? 'Page' : 'Step', side);
    bar.held = setTimeout(go, pause, kRepeat);
  };
  go(kFirstRepeat);
}

function drag(event) {
  const bar = event.currentTarget;
  if (bar.grip === undefined || event.pointerId !== bar.holder) return;
  const { place, way } = measure(bar, event);
  const steps = Math.round(((place - bar.grip) / way) * (bar.max - bar.min));
  const value = Number(bar.min) + steps;
  if (value !== Number(bar.value)) tell(bar, 'Scroll', value);
}

function release({ currentTarget: bar, pointerId }) {
  if (pointerId !== bar.holder) return;
  clearTimeout(bar.held);
  bar.grip = bar.holder = undefined;
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
  const hear = (listener, ...types) => {
    for (const type of types) bar.addEventListener(type, listener, { passive: false });
  };
  hear(keepFromBrowser, 'mousedown', 'touchstart', 'contextmenu');
  hear(pressBar, 'pointerdown');
  hear(drag, 'pointermove');
  hear(release, 'pointerup', 'pointercancel', 'lostpointercapture');
  hear(turn, 'wheel');
  return bar;
}
