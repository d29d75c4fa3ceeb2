#include "track/motion.h"

namespace track {

std::optional<Motion> Course::MotionAt(const TrackPoint& point) const {
  const std::optional<double> speed = SpeedAfter(track_, distance_.To(point.x));
  if (!speed) return std::nullopt;
  const double drawn = track_.amplitude / 4.0;
  const double centripetal = CentripetalAcceleration(*speed, point.curvature);
  return Motion{.point = point,
                .speed = *speed,
                .centripetal = centripetal,
                .velocity = point.tangent * *speed,
                .centripetalArrow = point.normal * (drawn * centripetal),
                .tangentialArrow = point.tangent * (drawn * track_.tangentialAcceleration)};
}

}  // namespace track
