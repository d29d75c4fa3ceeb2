#include "evolution/step.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "scenes/parts.h"
#include "window/format.h"

namespace evolution {
namespace {

using scenes::DrawArrow;
using window::Format;

constexpr sketch::Colour kAcceleration{0, 25, 155};
constexpr sketch::Colour kMark{255, 0, 0};

// The body leaves the sketch at x = 20; the run goes on a little, so that its arrows leave too.
constexpr double kEnd = 30.0;

// Nothing of a mark this far from the sketch reaches it, not even a label on a small one.
constexpr double kFarAway = 100.0;

constexpr int kReferenceStep = 60;

// A reference distance below this is 0, and only rounding has made it a number: no run with steps
// of one length has a true one below 10^-5.
constexpr double kNothing = 1e-9;

// A width-3 line in the sketch's background covers the width-1 arrow under it.
void EraseArrows(sketch::Sketch& eikona, const window::Arrows& old) {
  eikona.DrawWidth = 3;
  DrawArrow(eikona, old.place, old.velocity, toolkit::kWhite);
  DrawArrow(eikona, old.place, old.tangential + old.centripetal, toolkit::kWhite);
  eikona.DrawWidth = 1;
}

// Brings the labels up to the last step. What a label says is settled when its mark is reached;
// only a new run or marks at other steps make new ones.
void UpdateLabels(window::MarkLabels& labels, const window::PathRecords& path, int steps,
                  int interval) {
  if (steps == 1 || labels.interval != interval) labels = {interval, {}};
  const auto marks = static_cast<std::size_t>(steps / interval) + 1;
  while (labels.texts.size() < marks) {
    const int step = static_cast<int>(labels.texts.size()) * interval;
    labels.texts.push_back(MarkLabel(path, step, interval).value_or(""));
  }
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

void DrawPath(sketch::Sketch& eikona, window::Module1& module) {
  const window::PathRecords& path = module.path;
  const window::MarkLabels& labels = module.labels;
  const auto interval = static_cast<std::size_t>(labels.interval);
  const auto places = static_cast<std::size_t>(module.StepCount) + 1;
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

Body BodyAtTime(const track::Parameters& track, double time) {
  const double speed = track.initialSpeed + track.tangentialAcceleration * time;
  const double distance =
      track.initialSpeed * time + 0.5 * track.tangentialAcceleration * time * time;
  const track::TrackPoint point = track::PointAt(track, track::AbscissaAtDistance(track, distance));
  const double centripetal = track::CentripetalAcceleration(speed, point.curvature);
  return {.distance = distance,
          .place = scenes::Place(point),
          .velocity = point.tangent * speed,
          .halfTangential = point.tangent * (track.tangentialAcceleration / 2.0),
          .halfCentripetal = point.normal * (centripetal / 2.0)};
}

std::optional<std::string> MarkLabel(const window::PathRecords& path, int i, int interval) {
  if (i < 30) return std::nullopt;
  const auto n = static_cast<std::size_t>(i);
  const double reference = path.PathDs[kReferenceStep];
  if (i == kReferenceStep) {
    return "Ds =" + Format(reference, 2) + " t =" + Format(path.PathTime[n], 2);
  }
  if (i - 1 - interval <= 0 || std::abs(reference) < kNothing) return std::nullopt;
  const double before = path.PathDs[static_cast<std::size_t>(i - 1 - interval)];
  return "Ds = " + Format((path.PathDs[n] - before) / reference, 2) + " X" + Format(reference, 2) +
         " t = " + Format(path.PathTime[n], 2);
}

void StepTimeEvolution(window::Controls& firststep) {
  window::Module1& module = firststep.module;
  window::PathRecords& path = module.path;
  sketch::Sketch& eikona = firststep.eikona;
  if (module.StepCount >= window::PathRecords::kLastStep) {
    firststep.Timer1.Enabled = false;
    return;
  }
  eikona.Description = "The motion in time: the body's path, its velocity and its acceleration";
  path.PathX[0] = path.PathY[0] = path.PathDs[0] = 0.0;
  const track::Parameters track = window::TrackParameters(firststep);
  scenes::PrintAt(eikona, 2, 8, "β = " + Format(track.frequency, 2));

  module.StepCount += 1;
  module.ElapsedTime += window::TimeStep(firststep);
  const auto n = static_cast<std::size_t>(module.StepCount);
  const Body body = BodyAtTime(track, module.ElapsedTime);
  path.PathTime[n] = module.ElapsedTime;
  path.PathDs[n] = body.distance - path.PathDs[n - 1];

  eikona.PSet(body.place.x, body.place.y);
  EraseArrows(eikona, module.previous);
  DrawArrow(eikona, body.place, body.velocity, scenes::colours::kVelocity);
  DrawArrow(eikona, body.place, body.halfTangential + body.halfCentripetal, kAcceleration);
  if (body.place.x > kEnd || module.StepCount == window::PathRecords::kLastStep) {
    firststep.Timer1.Enabled = false;
  }
  module.previous = {body.place, body.velocity, body.halfTangential, body.halfCentripetal};
  path.PathX[n] = body.place.x;
  path.PathY[n] = body.place.y;
  UpdateLabels(module.labels, path, module.StepCount, 3 * firststep.vimatimi.Value);
  module.trail.Change(n);
  DrawPath(eikona, module);
}

}  // namespace evolution
