#include "scenes/curvature_scene.h"

#include "scenes/parts.h"
#include "track/arc_length.h"
#include "track/motion.h"

namespace scenes {

void DrawCurvatureScene(window::Controls& firststep) {
  sketch::Sketch& eikona = firststep.eikona;
  const track::Parameters track = window::TrackParameters(firststep);
  const track::Course course(track);
  const char* shown = "The track; the body stops before the first crest";
  DrawTrack(eikona, track);
  for (const double phase : {track::Pi / 2.0, 3.0 * track::Pi / 2.0}) {
    const auto motion = course.MotionAt(phase / track.frequency);
    if (!motion) {
      eikona.Description = shown;
      return;
    }
    const track::Vector place = Place(motion->point);
    DrawCircleOfCurvature(eikona, motion->point);
    eikona.PSet(place.x, place.y);
    DrawArrow(eikona, place, motion->velocity, colours::kVelocity);
    DrawArrow(eikona, place, motion->centripetalArrow, colours::kCentripetal);
    DrawArrow(eikona, place, motion->tangentialArrow, colours::kTangential);
    shown =
        "The track with its circle of curvature at the first crest, and the velocity and "
        "acceleration there; the body stops before the first trough";
  }
  eikona.Description =
      "The track with its circles of curvature at the first crest and the first trough, and the "
      "velocity and acceleration there";
  firststep.Text1.Text =
      "The centripetal acceleration is directed towards the convex of the curve. The TANGENTIAL "
      "acceleration is directed according to the tangent, the circles are drawn with a radius "
      "=RADIUS OF CURVATURE.";
  DrawLegend(eikona, {{10, -9.1}, {10, -9.1}, colours::kVelocity}, "VELOCITY");
  DrawLegend(eikona, {{10, -8.1}, {10, -8.1}, colours::kCentripetal}, "CENTRIPETAL ACCELERATION");
}

}  // namespace scenes
