#include "toolkit/scroll_bar.h"

#include <algorithm>

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

}  // namespace toolkit
