#pragma once

#include <cstdint>
#include <functional>

#include "toolkit/controls.h"

namespace toolkit {

enum class Orientation { Horizontal, Vertical };

// The values a scroll bar runs through. They grow rightward, or downward when it stands upright.
struct ScrollRange {
  std::int16_t min, max, value, largeChange;
  std::int16_t smallChange = 1;
};

class ScrollBar : public Control {
 public:
  // The value: always inside the range, and every change of it raises the change event.
  class ValueProperty {
   public:
    ValueProperty(ScrollBar& bar, std::int16_t value) : bar_(bar), value_(value) {}
    ValueProperty(const ValueProperty&) = delete;
    ValueProperty& operator=(const ValueProperty&) = delete;
    ValueProperty& operator=(int value);
    operator std::int16_t() const { return value_; }

   private:
    ScrollBar& bar_;
    std::int16_t value_;
  };

  ScrollBar(ControlSite& site, const Design& design, Orientation orientation, ScrollRange range)
      : Control(site, design),
        Direction(orientation),
        Min(range.min),
        Max(range.max),
        SmallChange(range.smallChange),
        LargeChange(range.largeChange),
        Value(*this, range.value) {}

  const Orientation Direction;
  const std::int16_t Min, Max, SmallChange, LargeChange;
  ValueProperty Value;
  std::function<void()> Change;

  // The user has moved the thumb, or used an arrow, a page, a key or the wheel.
  void UserScroll(int value) {
    Events().Deliver([this, value] { Value = value; });
  }
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
};

}  // namespace toolkit
