#pragma once

#include <QRect>

#include <algorithm>
#include <cmath>

#include "toolkit/control.h"

namespace toolkit::qt {

// Logical pixels, the nearest whole number; lengths beyond any screen are cut to what Qt can take.
inline int PixelsOf(float twips) {
  constexpr float kFarthest = 100'000.0F;
  return static_cast<int>(std::lround(std::clamp(twips / kTwipsPerPixel, -kFarthest, kFarthest)));
}

// Each edge is rounded by itself, so that boxes which touch in twips touch in pixels.
inline QRect PixelsOf(float left, float top, float width, float height) {
  return {QPoint(PixelsOf(left), PixelsOf(top)),
          QPoint(PixelsOf(left + width) - 1, PixelsOf(top + height) - 1)};
}

}  // namespace toolkit::qt
