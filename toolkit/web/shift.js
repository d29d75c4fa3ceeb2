// The SHIFT button, for hands without a keyboard: once tapped, it stays down until the next release
// on the sketch; or it is held by one finger while another one pulls.
import { hear } from './texts.js';

const button = document.getElementById('SHIFT');
let finger = null; // the pointer on it
let lets = false; // it will be up when that finger leaves it
let tapped = false; // the click that comes now is that finger's

export const isShiftDown = () => button.getAttribute('aria-pressed') === 'true';
const press = (yes) => button.setAttribute('aria-pressed', yes);

// Something was let go on the sketch.
export function useShift() {
  if (finger === null) press(false);
  else lets = true;
}

export function hearShift() {
  hear(button, ({ pointerId }) => {
    button.setPointerCapture(pointerId);
    [finger, lets, tapped] = [pointerId, isShiftDown(), false];
    press(true);
  }, 'pointerdown');
  hear(button, ({ pointerId, type }) => {
    if (pointerId !== finger) return;
    [finger, tapped] = [null, type === 'pointerup'];
    if (lets) press(false);
  }, 'pointerup', 'pointercancel');
  // A keyboard, a switch or a voice clicks without a finger.
  hear(button, () => {
    if (!tapped) press(!isShiftDown());
    tapped = false;
  }, 'click');
  hear(button, (event) => event.preventDefault(), 'contextmenu');
}
