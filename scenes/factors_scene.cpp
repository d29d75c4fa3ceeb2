#include "scenes/factors_scene.h"

#include "scenes/parts.h"
#include "track/motion.h"
#include "window/format.h"

namespace scenes {
namespace {

// A station every 1.4 sketch units.
constexpr int kSamplesPerStation = 28;

void DrawStation(sketch::Sketch& eikona, const track::Motion& motion) {
  const track::Vector place = Place(motion.point);
  DrawArrow(eikona, place, motion.velocity, colours::kVelocity);
  eikona.DrawWidth = 2;
  DrawArrow(eikona, place, motion.centripetalArrow, colours::kCentripetal);
  eikona.DrawWidth = 1;
  DrawArrow(eikona, place, motion.centripetalArrow + motion.tangentialArrow, colours::kTotal);
}

}  // namespace

void DrawFactorsScene(window::Controls& firststep) {
  sketch::Sketch& eikona = firststep.eikona;
  const track::Parameters track = window::TrackParameters(firststep);
  const track::Course course(track);
  for (int sample = 0; sample < kTrackSamples; ++sample) {
    const auto motion = course.MotionAt(SampleAbscissa(sample));
    if (!motion) {
      eikona.Description =
          "The track with the velocity, the centripetal and the total acceleration, as far as the "
          "body comes: it stops at x = " +
          window::Format(SampleAbscissa(sample - 1), 1);
      return;
    }
    eikona.PSet(motion->point.x, motion->point.y);
    if (sample % kSamplesPerStation == 0) DrawStation(eikona, *motion);
  }
  eikona.Description =
      "The track with the velocity, the centripetal and the total acceleration at fifteen stations";
  firststep.Text1.Text =
      "The centripetal acceleration has a direction towards the convex of the curve."
      "  You can study the effect of CURVATURE  on respect of the MEASURE of CENTRIPETAL "
      "acceleration. You can change the SPEED, so that changes the centripetal acceleration=υ²/R "
      "where R radius of CURVATURE. You can change the AMPLITUDE, the FREQUENCY of the curve, so "
      "this changes the CURVATURE. You should observe that the CENTRIPETAL =0 in points where the "
      "orbit is LINEAR. By changing the TANGENT component of acceleration you can see that if it "
      "is increased, the CENTRIPETAL acceleration changes.";
  DrawLegend(eikona, {{10, -9.1}, {9, -9.1}, colours::kVelocity}, "VELOCITY");
  DrawLegend(eikona, {{10, -8.1}, {9, -8.1}, colours::kCentripetal}, "CENTRIPETAL ACCELERATION");
  eikona.DrawWidth = 1;
  DrawLegend(eikona, {{10, -7.1}, {9, -7.1}, colours::kTotal}, "TOTAL ACCELERATION");
}

}  // namespace scenes
