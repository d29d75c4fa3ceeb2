#include "toolkit/pointer_shape.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace toolkit {
namespace {

constexpr Colour kBlack{0, 0, 0};
constexpr double kEdge = 5.0;  // widths and lengths in pixels at 96 dots per inch
constexpr double kInk = 2.0;
constexpr double kRing = 7.0;
constexpr double kTipRing = 2.0;
constexpr double kDash = 6.0;
constexpr double kGap = 4.0;
// A tip farther away than any screen is wide needs no dash there.
constexpr int kMostDashes = 2000;

void AddDashes(std::vector<Stroke>& shape, Point from, Point to, double density) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  const double pitch = (kDash + kGap) * density;
  const auto on = [&](double way) {
    const double part = std::min(way / length, 1.0);
    return Point{from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)};
  };
  // A segment's square ends reach beyond its own by half its width.
  const double ends = kInk * density / 2.0;
  for (int i = 0; i < kMostDashes && i * pitch < length; ++i) {
    const double begin = i * pitch;
    shape.push_back(
        {on(begin + ends), on(begin + kDash * density - ends), 0.0, kInk * density, kBlack});
  }
}

}  // namespace

std::vector<Stroke> PointerShape(const KeyPointer& at, double density) {
  std::vector<Stroke> shape;
  if (at.tip) {
    shape.push_back({at.place, *at.tip, 0.0, kEdge * density, kWhite});
    AddDashes(shape, at.place, *at.tip, density);
  }
  for (const auto& [width, colour] : {std::pair(kEdge, kWhite), std::pair(kInk, kBlack)}) {
    shape.push_back({at.place, {}, kRing * density, width * density, colour});
    if (at.tip) shape.push_back({*at.tip, {}, kTipRing * density, width * density, colour});
  }
  return shape;
}

}  // namespace toolkit
