#pragma once

#include "toolkit/control.h"

namespace toolkit {

// A box of whole pixels: its top-left one, and how many across and down.
struct PixelBox {
  int left, top, width, height;
  bool operator==(const PixelBox&) const = default;
};

// Rounds twips to a backend's pixels, `zoom` of which make 15 twips.
class TwipScale {
 public:
  explicit TwipScale(double zoom) : zoom_(zoom) {}

  double Zoom() const { return zoom_; }
  // The nearest whole number; lengths beyond any screen are cut to what a toolkit can take.
  int PixelsOf(float twips) const;
  // Each edge is rounded by itself, so that boxes which touch in twips touch in pixels.
  PixelBox PixelsOf(const Control& control) const;
  // The part of a picture box that is left for the picture: a frame stands around it.
  PixelBox CanvasOf(const Control& control) const;

 private:
  double zoom_;
};

// The size of letters in pixels, `scale` times as large as at 96 dots per inch; at least 1. In
// pixels, never in points: every length on the window is fixed at 96 dots per inch, and a desktop
// that claims another density would let the texts grow out of their boxes. Letters that are made
// smaller are rounded down: rounded up, they would not fit into boxes as much smaller.
int FontPixels(float points, double scale);

}  // namespace toolkit
