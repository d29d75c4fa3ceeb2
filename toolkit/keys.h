#pragma once

namespace toolkit {

// The keys that the program tells apart, whatever a backend calls them. Enter is both keys of that
// name.
enum class KeyCode {
  Left,
  Right,
  Up,
  Down,
  PageUp,
  PageDown,
  Home,
  End,
  Enter,
  Space,
  Escape,
  Shift,
  Other
};

// The bits of the shift state that comes with a key or a mouse button.
inline constexpr int kShiftMask = 1;
inline constexpr int kCtrlMask = 2;
inline constexpr int kAltMask = 4;

// What a key does on a picture. Pick is Enter or Space, Cancel is Escape.
enum class Key { Left, Right, Up, Down, Home, End, Pick, Cancel, ShiftReleased };

// A key pressed or let go.
struct KeyEvent {
  KeyCode code;
  int shift = 0;          // the shift state's bits
  bool repeated = false;  // the keyboard's own repetition of a key that is held
};

// -1 for an arrow key that leads left or up, 1 for one that leads right or down, else 0.
constexpr int StepOf(KeyCode code) {
  if (code == KeyCode::Left || code == KeyCode::Up) return -1;
  if (code == KeyCode::Right || code == KeyCode::Down) return 1;
  return 0;
}

// Whether the key clicks the button that has the focus. Held down, it clicks once.
constexpr bool Clicks(const KeyEvent& key) {
  return (key.code == KeyCode::Enter || key.code == KeyCode::Space) && !key.repeated;
}

}  // namespace toolkit
