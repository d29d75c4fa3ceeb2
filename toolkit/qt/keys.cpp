#include "toolkit/qt/keys.h"

namespace toolkit::qt {
namespace {

KeyCode CodeOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return KeyCode::Left;
    case Qt::Key_Right:
      return KeyCode::Right;
    case Qt::Key_Up:
      return KeyCode::Up;
    case Qt::Key_Down:
      return KeyCode::Down;
    case Qt::Key_PageUp:
      return KeyCode::PageUp;
    case Qt::Key_PageDown:
      return KeyCode::PageDown;
    case Qt::Key_Home:
      return KeyCode::Home;
    case Qt::Key_End:
      return KeyCode::End;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return KeyCode::Enter;
    case Qt::Key_Space:
      return KeyCode::Space;
    case Qt::Key_Escape:
      return KeyCode::Escape;
    case Qt::Key_Shift:
      return KeyCode::Shift;
    default:
      return KeyCode::Other;
  }
}

}  // namespace

int ShiftState(Qt::KeyboardModifiers keys) {
  return (keys.testFlag(Qt::ShiftModifier) ? kShiftMask : 0) |
         (keys.testFlag(Qt::ControlModifier) ? kCtrlMask : 0) |
         (keys.testFlag(Qt::AltModifier) ? kAltMask : 0);
}

KeyEvent KeyOf(const QKeyEvent& event) {
  return {CodeOf(event.key()), ShiftState(event.modifiers()), event.isAutoRepeat()};
}

}  // namespace toolkit::qt
