#include "sketch/trail.h"

#include <algorithm>
#include <cmath>

namespace sketch {
namespace {

using toolkit::Point;

// Whether dots of this side cover the same pixels at both places.
bool SamePixels(Point a, Point b, int side) {
  const double shift = side % 2 == 0 ? 0.0 : 0.5;
  return std::floor(a.x + shift) == std::floor(b.x + shift) &&
         std::floor(a.y + shift) == std::floor(b.y + shift);
}

// Room for the widest dot on the densest screen.
constexpr double kMargin = 32.0;

bool Shows(Point p, toolkit::Extent size) {
  return p.x > -kMargin && p.x < size.width + kMargin && p.y > -kMargin &&
         p.y < size.height + kMargin;
}

}  // namespace

void Trail::Change(std::size_t index) {
  if (index >= mapped_) return;
  const std::size_t kept = KeptBefore(index);
  places_.resize(kept);
  indices_.resize(kept);
  mapped_ = index;
}

void Trail::Update(const Sketch& sketch, std::span<const double> xs, std::span<const double> ys) {
  if (!(mapping_ == sketch.ToPixels()) || side_ != sketch.DotSide()) {
    Change(0);
    mapping_ = sketch.ToPixels();
    side_ = sketch.DotSide();
  }
  xs_ = xs;
  ys_ = ys;
  for (; mapped_ < xs.size(); ++mapped_) {
    const Point place = mapping_(xs[mapped_], ys[mapped_]);
    if (!Shows(place, mapping_.size)) continue;
    if (mapped_ > 0) {
      const Point before = mapping_(xs[mapped_ - 1], ys[mapped_ - 1]);
      if (SamePixels(before, place, side_)) continue;
    }
    places_.push_back(place);
    indices_.push_back(static_cast<std::uint32_t>(mapped_));
  }
}

void Trail::Draw(Sketch& sketch, std::size_t first, std::size_t count) const {
  if (sketch.Settling()) {
    for (std::size_t i = first; i < first + count; ++i) sketch.PSet(xs_[i], ys_[i]);
    return;
  }
  const std::size_t from = KeptBefore(first);
  const std::size_t to = KeptBefore(first + count);
  sketch.PSetPixels(std::span(places_).subspan(from, to - from));
}

std::size_t Trail::KeptBefore(std::size_t index) const {
  // Most asked for, by a body that has left the sketch for good.
  if (indices_.empty() || indices_.back() < index) return indices_.size();
  return static_cast<std::size_t>(std::lower_bound(indices_.begin(), indices_.end(), index) -
                                  indices_.begin());
}

}  // namespace sketch
