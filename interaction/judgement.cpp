#include "interaction/judgement.h"

#include <cmath>
#include <string>

#include "interaction/point_scene.h"
#include "scenes/parts.h"

namespace interaction {
namespace {

constexpr sketch::Colour kForce{0, 0, 255};
constexpr sketch::Colour kNeededCentripetal{0, 150, 250};
constexpr sketch::Colour kNeededCentripetalLegend{25, 50, 250};
constexpr sketch::Colour kExtraForShape{0, 250, 10};
constexpr sketch::Colour kExtraForTangential{150, 200, 50};

constexpr const char* kWrongForTangential = "FORCE: INCORRECT FOR THE TANGENTIAL ACCELERATION";
constexpr const char* kRightForShape =
    "FORCE: HAS THE CORRECT DIRECTION FOR THE SHAPE OF THE CURVE";
constexpr const char* kWrongForShape = "FORCE: HAS WRONG DIRECTION FOR THE SHAPE OF THE CURVE";

// The verdicts stand on the sketch only; this says them to those who do not see it.
void Announce(sketch::Sketch& eikona, const Judgement& judgement) {
  std::string verdicts = judgement.rightForShape ? kRightForShape : kWrongForShape;
  if (judgement.wrongForTangential) verdicts = std::string(kWrongForTangential) + ". " + verdicts;
  eikona.Announce(verdicts);
}

void DrawShapeVerdict(sketch::Sketch& eikona, const Judgement& judgement,
                      const track::Vector& place, const track::Vector& centripetal) {
  if (judgement.rightForShape) {
    scenes::PrintAt(eikona, 2, 8, kRightForShape);
    return;
  }
  scenes::PrintAt(eikona, 2, 8, kWrongForShape);
  eikona.DrawWidth = 3;
  if (track::Length(centripetal) != 0.0) {
    scenes::DrawArrow(eikona, place, centripetal, kNeededCentripetal);
    scenes::DrawLegend(eikona, {{2, 7}, {0.2, 6.8}, kNeededCentripetalLegend},
                       "DIRECTION OF EXTRA FORCE FOR CENTRIPETAL");
  }
  eikona.DrawWidth = 1;
}

void DrawExtraForces(sketch::Sketch& eikona, const Judgement& judgement,
                     const track::Vector& place) {
  eikona.DrawWidth = 2;
  if (judgement.extraForShape) {
    scenes::DrawArrow(eikona, place, *judgement.extraForShape, kExtraForShape);
  }
  if (judgement.extraForTangential) {
    scenes::DrawArrow(eikona, place, *judgement.extraForTangential, kExtraForTangential);
  }
  scenes::DrawLegend(eikona, {{2, -8}, {0.2, -8.5}, kExtraForShape},
                     "EXTRA NEEDED FORCE FOR SHAPE");
  scenes::DrawLegend(eikona, {{2, -9}, {0.2, -9.5}, kExtraForTangential},
                     "EXTRA NEEDED FORCE FOR TANGENTIAL ACC.");
  eikona.DrawWidth = 1;
}

}  // namespace

Judgement Judge(const track::Motion& motion, const track::Vector& force) {
  const track::Vector friction = Friction(motion);
  const track::Vector& tangential = motion.tangentialArrow;
  Judgement judgement{};
  judgement.wrongForTangential =
      (force + friction).Dot(tangential) < 0.0 || force.Dot(friction) > 0.0;
  judgement.rightForShape = motion.centripetalArrow.Dot(force) > 0.0;
  if (motion.centripetal != 0.0) {
    const track::Vector inward = motion.point.normal * (motion.centripetal < 0.0 ? -1.0 : 1.0);
    const double needed = std::abs(motion.centripetal);
    judgement.extraForShape = inward * (needed - force.Dot(inward));
  }
  if (track::Length(tangential) != 0.0 || motion.speed != 0.0) {
    // Both point along the tangent, which is therefore the direction to project on.
    const track::Vector& along = motion.point.tangent;
    judgement.extraForTangential = tangential - (friction + along * force.Dot(along));
  }
  return judgement;
}

void JudgeForce(window::Controls& firststep, float x, float y) {
  sketch::Sketch& eikona = firststep.eikona;
  window::Module1& module = firststep.module;
  const track::Vector place{module.ForceStartX, module.ForceStartY};
  const auto motion = MotionAtPicked(window::TrackParameters(firststep), place.x);
  if (!motion) return;
  module.VelocityX = motion->velocity.x;
  module.VelocityY = motion->velocity.y;
  const track::Vector force = track::Vector{x, y} - place;
  scenes::DrawArrow(eikona, place, force, kForce);
  const Judgement judgement = Judge(*motion, force);
  if (judgement.wrongForTangential) {
    scenes::PrintAt(eikona, 2, 9, kWrongForTangential);
  }
  DrawShapeVerdict(eikona, judgement, place, motion->centripetalArrow);
  DrawExtraForces(eikona, judgement, place);
  Announce(eikona, judgement);
}

}  // namespace interaction
