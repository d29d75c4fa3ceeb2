#include "toolkit/picture_box.h"

#include <algorithm>

namespace toolkit {
namespace {

std::optional<Key> MeaningOf(KeyCode code) {
  switch (code) {
    case KeyCode::Left:
      return Key::Left;
    case KeyCode::Right:
      return Key::Right;
    case KeyCode::Up:
      return Key::Up;
    case KeyCode::Down:
      return Key::Down;
    case KeyCode::Home:
      return Key::Home;
    case KeyCode::End:
      return Key::End;
    case KeyCode::Enter:
    case KeyCode::Space:
      return Key::Pick;
    case KeyCode::Escape:
      return Key::Cancel;
    default:
      return std::nullopt;
  }
}

}  // namespace

void PictureBox::UserMouseDown(const MouseEvent& event) {
  Events().Deliver([this, event] {
    pressed_ = true;
    OnMouseDown(event);
  });
}

void PictureBox::UserMouseUp(const MouseEvent& event) {
  Events().Deliver([this, event] {
    pressed_ = false;
    OnMouseUp(event);
  });
}

void PictureBox::UserMouseCancel() {
  Events().Deliver([this] { pressed_ = false; });
}

bool PictureBox::UserKeyDown(const KeyEvent& key) {
  if (key.code == KeyCode::Shift) {
    if (!key.repeated) ++shiftKeys_;
  } else if (shiftKeys_ > 0 && (key.shift & kShiftMask) == 0) {
    // It was let go unheard, as two SHIFT keys at once on some systems.
    shiftKeys_ = 0;
    UserKey(Key::ShiftReleased, key.shift);
  }
  const std::optional<Key> meaning = MeaningOf(key.code);
  if (!meaning) return false;
  if (*meaning != Key::Pick || !key.repeated) UserKey(*meaning, key.shift);
  return true;
}

bool PictureBox::UserKeyUp(const KeyEvent& key) {
  if (key.code != KeyCode::Shift || key.repeated) return false;
  shiftKeys_ = std::max(shiftKeys_ - 1, 0);
  if (shiftKeys_ == 0) UserKey(Key::ShiftReleased, key.shift);
  return true;
}

void PictureBox::UserFocusLost() {
  shiftKeys_ = 0;
  UserKey(Key::Cancel, 0);
}

}  // namespace toolkit
