#include "track/motion.h"

namespace track {

std::optional<Motion> MotionAt(const Parameters& track, const TrackPoint& point) {
  const std::optional<double> speed = SpeedAfter(track, SceneArcLength(track, point.x));
  if (!speed) return std::nullopt;
  const double drawn = track.amplitude / 4.0;
  const double centripetal = CentripetalAcceleration(*speed, point.curvature);
  return Motion{.point = point,
                .speed = *speed,
                .centripetal = centripetal,
                .velocity = point.tangent * *speed,
                .centripetalArrow = point.normal * (drawn * centripetal),
                .tangentialArrow = point.tangent * (drawn * track.tangentialAcceleration)};
}

std::optional<Motion> MotionAt(const Parameters& track, double x) {
  return MotionAt(track, PointAt(track, x));
}

}  // namespace track
