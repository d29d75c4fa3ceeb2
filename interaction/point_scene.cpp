#include "interaction/point_scene.h"

#include <cmath>
#include <string>

#include "scenes/curvature_scene.h"
#include "scenes/parts.h"
#include "window/format.h"

namespace interaction {
namespace {

namespace colours = scenes::colours;

constexpr double kReach = 0.1;
constexpr double kStraight = 1e15;

void DrawFriction(sketch::Sketch& eikona, const track::Motion& motion) {
  scenes::DrawArrow(eikona, scenes::Place(motion.point), Friction(motion), colours::kFriction);
  scenes::DrawLegend(eikona, {{2, 9.8}, {0.2, 9.3}, colours::kFriction}, "FRICTION");
}

std::string Describe(const track::Motion& motion) {
  using window::Format;
  return "The track with the velocity, the acceleration and the circle of curvature at x = " +
         Format(motion.point.x, 1) + ", y = " + Format(motion.point.y, 1) + ": speed " +
         Format(motion.speed, 1) + ", centripetal acceleration " +
         Format(std::abs(motion.centripetal), 1) +
         (motion.centripetal < 0.0   ? " downward"
          : motion.centripetal > 0.0 ? " upward"
                                     : "");
}

void Explain(window::Controls& firststep) {
  if (firststep.GUESSFORCE.Checked) {
    firststep.Text1.Text =
        "Click on the diagram so that the vectors FRCTION, VELOCITY and ACCELERATION(centripetal "
        "and tangential). PRESS SHIFT and drag the mouse from a point of the curve to draw a "
        "force that will explain the SHAPE AND TANGENTIAL, observe if the drawn force: Α) IS "
        "CORRECT AS FAR AS DIRECTION IS CONCERNED & Β)WHICH ARE THE FORCES NEEDED?";
  } else if (firststep.DYNAMEISDIAFORES.Checked) {
    firststep.Text1.Text =
        "The centripetal acceleration is directed towards the convex part of the curve. The "
        "TANGENTIAL is tangent to the curve, the circles are drawn with radius = RADIUS OF "
        "CURVATURE.";
  }
}

}  // namespace

track::Vector Friction(const track::Motion& motion) {
  if (motion.speed == 0.0) return {0.0, 0.0};
  return -motion.point.tangent * kFriction;
}

bool IsOnTrack(const track::Parameters& track, const track::Vector& place) {
  return std::abs(track::Height(track, place.x) - place.y) < kReach;
}

std::optional<track::Motion> MotionAtPicked(const track::Parameters& track, double x) {
  track::TrackPoint point = track::PointAt(track, x);
  if (std::abs(point.radius) > kStraight) point.curvature = 0.0;
  return track::Course(track).MotionAt(point);
}

void DrawPointVectors(window::Controls& firststep, float x, float y) {
  sketch::Sketch& eikona = firststep.eikona;
  window::Module1& module = firststep.module;
  eikona.Cls();
  const track::Parameters track = window::TrackParameters(firststep);
  scenes::DrawTrack(eikona, track);
  const track::Vector picked{x, y};
  module.PointOnTrack = IsOnTrack(track, picked);
  if (!module.PointOnTrack) {
    scenes::DrawCurvatureScene(firststep);
    return;
  }
  const auto motion = MotionAtPicked(track, picked.x);
  if (!motion) {
    eikona.Description = "The track; the body never arrives at the picked point";
    return;
  }
  eikona.Description = Describe(*motion);
  const track::Vector place = scenes::Place(motion->point);
  scenes::DrawCircleOfCurvature(eikona, motion->point);
  eikona.PSet(place.x, place.y);
  module.VelocityX = motion->velocity.x;
  module.VelocityY = motion->velocity.y;
  scenes::DrawArrow(eikona, place, motion->velocity, colours::kVelocity);
  scenes::DrawArrow(eikona, place, motion->centripetalArrow, colours::kCentripetal);
  scenes::DrawArrow(eikona, place, motion->tangentialArrow, colours::kTangential);
  eikona.DrawWidth = 3;
  if (firststep.GUESSFORCE.Checked) DrawFriction(eikona, *motion);
  eikona.DrawWidth = 1;
  Explain(firststep);
  scenes::DrawLegend(eikona, {{15, -9.1}, {14, -9.1}, colours::kVelocity}, "VELOCITY");
  scenes::DrawLegend(eikona, {{15, -8.1}, {14, -8.1}, colours::kCentripetal}, "ACCELERATION");
}

}  // namespace interaction
