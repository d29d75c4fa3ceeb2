#pragma once

#include <QRect>

#include <algorithm>
#include <cmath>

#include "toolkit/control.h"

namespace toolkit::qt {

// Rounds twips to Qt's logical pixels. Of those `zoom` make 15 twips.
class TwipScale {
 public:
  explicit TwipScale(double zoom) : zoom_(zoom) {}

  double Zoom() const { return zoom_; }

  // The nearest whole number; lengths beyond any screen are cut to what Qt can take.
  int PixelsOf(float twips) const {
    constexpr double kFarthest = 100'000.0;
    const double pixels = static_cast<double>(twips) / kTwipsPerPixel * zoom_;
    return static_cast<int>(std::lround(std::clamp(pixels, -kFarthest, kFarthest)));
  }

  // Each edge is rounded by itself, so that boxes which touch in twips touch in pixels.
  QRect PixelsOf(float left, float top, float width, float height) const {
    return {QPoint(PixelsOf(left), PixelsOf(top)),
            QPoint(PixelsOf(left + width) - 1, PixelsOf(top + height) - 1)};
  }

  // A whole number of pixels in twips.
  float TwipsOf(int pixels) const { return static_cast<float>(pixels / zoom_) * kTwipsPerPixel; }

 private:
  double zoom_;
};

}  // namespace toolkit::qt
