#include "toolkit/lengths.h"

#include <algorithm>
#include <cmath>

#include "toolkit/picture_box.h"

namespace toolkit {

int TwipScale::PixelsOf(float twips) const {
  constexpr double kFarthest = 100'000.0;
  const double pixels = static_cast<double>(twips) / kTwipsPerPixel * zoom_;
  return static_cast<int>(std::lround(std::clamp(pixels, -kFarthest, kFarthest)));
}

PixelBox TwipScale::PixelsOf(const Control& control) const {
  const int left = PixelsOf(control.Left);
  const int top = PixelsOf(control.Top);
  return {left, top, PixelsOf(control.Right()) - left, PixelsOf(control.Bottom()) - top};
}

PixelBox TwipScale::CanvasOf(const Control& control) const {
  const PixelBox box = PixelsOf(control);
  return {box.left + kFramePixels, box.top + kFramePixels,
          std::max(1, box.width - 2 * kFramePixels), std::max(1, box.height - 2 * kFramePixels)};
}

int FontPixels(float points, double scale) {
  constexpr double kPixelsPerPoint = 96.0 / 72.0;
  const double pixels = std::min(static_cast<double>(points) * kPixelsPerPoint * scale, 10'000.0);
  return std::max(1, static_cast<int>(scale < 1.0 ? pixels : std::round(pixels)));
}

}  // namespace toolkit
