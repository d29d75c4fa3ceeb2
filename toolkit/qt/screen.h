#pragma once

#include <QRect>

#include "toolkit/zoom.h"

namespace toolkit::qt {

// What a window's title bar takes of the screen's height, in logical pixels.
inline constexpr double kTitleHeight = 30.0;

// The part of the primary screen that panels leave free, in logical pixels.
QRect FreePart();

// What the frame takes of its width.
inline constexpr int kFrameSides = 10;

// The room that this part of the screen has for a window in its frame; the title counts extra.
inline Size RoomIn(const QRect& part) {
  return {static_cast<double>(part.width() - kFrameSides), static_cast<double>(part.height())};
}

}  // namespace toolkit::qt
