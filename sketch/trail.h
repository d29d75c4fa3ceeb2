#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "sketch/sketch.h"

namespace sketch {

// A row of dots that grows at its end and is drawn anew, all of it, again and again. It keeps the
// dots' places in pixels and leaves out those that change nothing: a dot outside the sketch, and
// one on the same pixels as the dot before. A body that creeps leaves thousands of those.
class Trail {
 public:
  // The row's entries from `index` on are no longer what they were.
  void Change(std::size_t index);
  // Takes over the row (xs[i], ys[i]), in user units, and the size and scale of the sketch. The
  // numbers must outlive the trail.
  void Update(const Sketch& sketch, std::span<const double> xs, std::span<const double> ys);
  // Draws dots first to first + count - 1 of the row that was taken over, as PSet would draw each:
  // in the foreground colour at the current width.
  void Draw(Sketch& sketch, std::size_t first, std::size_t count) const;

 private:
  std::size_t KeptBefore(std::size_t index) const;

  Mapping mapping_{};
  int side_ = 0;            // of a dot, in pixels
  std::size_t mapped_ = 0;  // entries of the row that have been looked at
  std::vector<toolkit::Point> places_;
  std::vector<std::uint32_t> indices_;  // of the places in the row
  std::span<const double> xs_, ys_;     // the row itself, which belongs to whoever draws it
};

}  // namespace sketch
