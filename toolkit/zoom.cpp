#include "toolkit/zoom.h"

#include <algorithm>

#include "toolkit/control.h"

namespace toolkit {
namespace {

// The pixel of the program is one of the screen's up to this height, in proportion above.
constexpr double kTallest = 1080.0;

Size AtLeastOne(Size size) {
  return {std::max(size.width, 1.0), std::max(size.height, 1.0)};
}

}  // namespace

View ViewOf(Size part, double title, const Room& room) {
  const Size free = AtLeastOne(part);
  const double rest = (1.0 - room.share) * free.height - title;
  const double fits = std::min({rest / (room.under + kMenuHeight), free.width / room.narrowest,
                                room.share * free.height / room.lowest});
  // How much larger than 1 it may be: by the height, and on a narrow screen by the width that goes
  // with that height.
  const double byWidth = free.width / (room.beside + room.share * kTallest);
  const double largest = std::max(1.0, std::min(free.height / kTallest, byWidth));
  const double zoom = std::max(std::min(fits, largest), kLeastZoom);
  // The screen's height at which picture and what stands beside it take the whole width.
  const double widest = std::max((free.width - room.beside * zoom) / room.share, 1.0);
  return {zoom, {free.width / zoom, std::min(free.height, widest) / zoom}, part};
}

double ZoomFor(Size free, double title, Size needed, const View& laid) {
  if (free == laid.free) return laid.zoom;
  free = AtLeastOne(free);
  needed = AtLeastOne(needed);
  const double fits =
      std::min(free.width / needed.width, (free.height - title) / (needed.height + kMenuHeight));
  return std::max(std::min(fits, free.height / laid.screen.height), kLeastZoom);
}

Size PageFor(Size seen, const Room& room) {
  // Letters of 8.25 points are then some 8 pixels high.
  constexpr double kLeast = 0.7;
  return {std::max(seen.width, kLeast * room.narrowest),
          std::max({seen.height, kLeast * room.lowest / room.share,
                    kLeast * (room.under + kMenuHeight) / (1.0 - room.share)})};
}

Size Extents(const std::vector<Control*>& controls) {
  float right = 0.0F;
  float bottom = 0.0F;
  for (const Control* control : controls) {
    right = std::max(right, control->Right());
    bottom = std::max(bottom, control->Bottom());
  }
  return {right / kTwipsPerPixel, bottom / kTwipsPerPixel};
}

}  // namespace toolkit
