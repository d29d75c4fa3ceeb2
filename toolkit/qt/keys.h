#pragma once

#include <QKeyEvent>

#include "toolkit/keys.h"

namespace toolkit::qt {

// The shift state's bits.
int ShiftState(Qt::KeyboardModifiers keys);

// Qt's key event as the program knows it.
KeyEvent KeyOf(const QKeyEvent& event);

}  // namespace toolkit::qt
