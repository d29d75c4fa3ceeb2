#include "toolkit/scroll_bar.h"

#include <algorithm>
#include <cmath>

namespace toolkit {

ScrollBar::ValueProperty& ScrollBar::ValueProperty::operator=(int value) {
  const auto inside = static_cast<std::int16_t>(std::clamp<int>(value, bar_.Min, bar_.Max));
  // A backend that offered a value outside the range must be brought back, changed or not.
  const bool changed = inside != value_;
  value_ = inside;
  if (changed || inside != value) bar_.Changed();
  if (changed && bar_.Change) bar_.Change();
  return *this;
}

bool ScrollBar::UserKey(KeyCode key) {
  if (const int direction = StepOf(key); direction != 0) {
    UserStep(direction);
  } else if (key == KeyCode::PageUp || key == KeyCode::PageDown) {
    UserPage(key == KeyCode::PageUp ? -1 : 1);
  } else if (key == KeyCode::Home || key == KeyCode::End) {
    UserScroll(key == KeyCode::Home ? Min : Max);
  } else {
    return false;
  }
  return true;
}

void ScrollBar::UserWheel(double x, double y) {
  // No hand turns further at once; a driver may say anything.
  constexpr double kFarthest = 1000.0 * kWheelNotch;
  const double turned = std::abs(x) > std::abs(y) ? x : y;
  if (std::isnan(turned)) return;
  wheel_ += std::clamp(turned, -kFarthest, kFarthest);
  const int notches = static_cast<int>(wheel_ / kWheelNotch);
  wheel_ -= notches * kWheelNotch;
  if (notches != 0) UserMove(-notches * SmallChange);
}

}  // namespace toolkit
