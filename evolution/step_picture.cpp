#include "evolution/step_picture.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "scenes/parts.h"
#include "window/format.h"

namespace evolution {
namespace {

using scenes::DrawArrow;

constexpr sketch::Colour kAcceleration{0, 25, 155};
constexpr sketch::Colour kMark{255, 0, 0};

// Nothing of a mark this far from the sketch reaches it, not even a label on a small one.
constexpr double kFarAway = 100.0;

// A width-3 line in the sketch's background covers the width-1 arrow under it.
void EraseArrows(sketch::Sketch& eikona, const window::Arrows& old) {
  eikona.DrawWidth = 3;
  DrawArrow(eikona, old.place, old.velocity, toolkit::kWhite);
  DrawArrow(eikona, old.place, old.tangential + old.centripetal, toolkit::kWhite);
  eikona.DrawWidth = 1;
}

// A red mark over the path's dot of step n, with its label.
void DrawMark(sketch::Sketch& eikona, const window::PathRecords& path, std::size_t n,
              const std::string& label) {
  eikona.PSet(path.PathX[n], path.PathY[n]);
  eikona.DrawWidth = 3;
  eikona.PSet(path.PathX[n], path.PathY[n], kMark);
  if (!label.empty()) scenes::PrintAt(eikona, path.PathX[n], path.PathY[n], label);
  eikona.DrawWidth = 1;
}

void DrawPath(sketch::Sketch& eikona, window::Module1& module, int steps) {
  const window::PathRecords& path = module.path;
  const window::MarkLabels& labels = module.labels;
  const auto interval = static_cast<std::size_t>(labels.interval);
  const auto places = static_cast<std::size_t>(steps) + 1;
  module.trail.Update(eikona, std::span(path.PathX).first(places), path.PathY);
  for (std::size_t mark = 0; mark * interval < places; ++mark) {
    const std::size_t first = mark * interval;
    const std::size_t end = std::min(first + interval, places);
    std::size_t next = first + 1;
    if (std::abs(path.PathX[first]) < kFarAway) {
      DrawMark(eikona, path, first, labels.texts[mark]);
      // The mark lies on the next dot too, which for the trail may be the same as its own.
      if (next < end) {
        eikona.PSet(path.PathX[next], path.PathY[next]);
        ++next;
      }
    }
    module.trail.Draw(eikona, next, end - next);
  }
}

}  // namespace

void DrawStep(sketch::Sketch& eikona, window::Module1& module, const StepPicture& step) {
  scenes::PrintAt(eikona, 2, 8, "β = " + window::Format(step.frequency, 2));
  const window::Arrows& now = step.now;
  eikona.PSet(now.place.x, now.place.y);
  EraseArrows(eikona, step.before);
  DrawArrow(eikona, now.place, now.velocity, scenes::colours::kVelocity);
  DrawArrow(eikona, now.place, now.tangential + now.centripetal, kAcceleration);
  DrawPath(eikona, module, step.steps);
}

}  // namespace evolution
