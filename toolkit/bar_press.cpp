#include "toolkit/bar_press.h"

#include <algorithm>
#include <cmath>

#include "toolkit/scroll_bar.h"

namespace toolkit {

bool BarPress::Press(double place, double length, double pixel) {
  arrow_ = kBarArrow * pixel;
  thumb_ = kBarThumb * pixel;
  way_ = length - 2.0 * arrow_ - thumb_;
  place_ = place - arrow_;
  grip_.reset();
  const double begin = Thumb();
  side_ = place_ < begin ? -1 : place_ >= begin + thumb_ ? 1 : 0;
  if (side_ == 0) grip_ = place_ - begin;
  return Again();
}

bool BarPress::Again() {
  if (side_ == 0) return false;
  const bool onArrow = place_ < 0.0 || place_ >= way_ + thumb_;
  if (onArrow) {
    bar_.UserStep(side_);
    return true;
  }
  const bool reached = side_ < 0 ? place_ >= Thumb() : place_ < Thumb() + thumb_;
  if (!reached) bar_.UserPage(side_);
  return !reached;
}

void BarPress::Drag(double place) {
  if (!grip_) return;
  const double share = (place - arrow_ - *grip_) / way_;
  // Where there is no way to go, or no place that is a number, the thumb stays.
  if (!(way_ > 0.0) || std::isnan(share)) return;
  const double steps = std::clamp(share, 0.0, 1.0) * (bar_.Max - bar_.Min);
  bar_.UserScroll(bar_.Min + static_cast<int>(std::lround(steps)));
}

double BarPress::Thumb() const {
  return way_ * (bar_.Value - bar_.Min) / (bar_.Max - bar_.Min);
}

}  // namespace toolkit
