#include "evolution/step.h"

#include <cmath>
#include <utility>

#include "evolution/step_picture.h"
#include "scenes/parts.h"
#include "window/format.h"

namespace evolution {
namespace {

using window::Format;

// The body leaves the sketch; the run goes on a little, so that its arrows leave too.
constexpr double kSketchEnd = 20.0;
constexpr double kEnd = 30.0;

constexpr int kReferenceStep = 60;

// A reference distance below this is 0, and only rounding has made it a number: no run with steps
// of one length has a true one below 10^-5.
constexpr double kNothing = 1e-9;

// Brings the labels up to the last step. What a label says is settled when its mark is reached;
// only a new run or marks at other steps make new ones.
void UpdateLabels(window::Controls& firststep, int interval) {
  window::MarkLabels& labels = firststep.module.labels;
  const int steps = firststep.module.StepCount;
  if (steps == 1 || labels.interval != interval) labels = {interval, {}};
  const auto marks = static_cast<std::size_t>(steps / interval) + 1;
  while (labels.texts.size() < marks) {
    const int step = static_cast<int>(labels.texts.size()) * interval;
    labels.texts.push_back(MarkLabel(firststep.module.path, step, interval).value_or(""));
  }
}

// Tells those who do not see the sketch what the step has added to it.
void Announce(window::Controls& firststep, bool leaves) {
  const window::Module1& module = firststep.module;
  const std::string& label = module.labels.texts.back();
  const double x = module.previous.place.x;
  const bool seen = x >= 0.0 && x <= kSketchEnd;
  if (seen && module.StepCount % module.labels.interval == 0 && !label.empty()) {
    firststep.eikona.Announce(label);
  }
  if (leaves) firststep.eikona.Announce("The run has ended: the body has left the sketch");
  if (module.StepCount == window::PathRecords::kLastStep) {
    firststep.eikona.Announce("The run has ended: the records are full");
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
  const int interval = 3 * firststep.vimatimi.Value;
  // What the last steps have drawn would come out otherwise from here on.
  if (module.StepCount == 0 || module.labels.interval != interval) eikona.Settle();

  eikona.Description = "The motion in time: the body's path, its velocity and its acceleration";
  path.PathX[0] = path.PathY[0] = path.PathDs[0] = 0.0;
  const track::Parameters track = window::TrackParameters(firststep);
  module.StepCount += 1;
  module.ElapsedTime += window::TimeStep(firststep);
  const auto n = static_cast<std::size_t>(module.StepCount);
  const Body body = BodyAtTime(track, module.ElapsedTime);
  path.PathTime[n] = module.ElapsedTime;
  path.PathDs[n] = body.distance - path.PathDs[n - 1];
  path.PathX[n] = body.place.x;
  path.PathY[n] = body.place.y;
  module.trail.Change(n);
  UpdateLabels(firststep, interval);

  const window::Arrows before = std::exchange(
      module.previous, {body.place, body.velocity, body.halfTangential, body.halfCentripetal});
  const StepPicture picture{module.StepCount, track.frequency, before, module.previous};
  eikona.Repeat([&eikona, &module, picture] { DrawStep(eikona, module, picture); });

  const bool left = body.place.x > kEnd;
  if (left || module.StepCount == window::PathRecords::kLastStep) firststep.Timer1.Enabled = false;
  Announce(firststep, left && path.PathX[n - 1] <= kEnd);
}

}  // namespace evolution
