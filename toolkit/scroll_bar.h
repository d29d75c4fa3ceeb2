#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "toolkit/bar_press.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"

namespace toolkit {

enum class Orientation { Horizontal, Vertical };

// The values a scroll bar runs through. They grow rightward, or downward when it stands upright.
struct ScrollRange {
  std::int16_t min, max, value, largeChange;
  std::int16_t smallChange = 1;
  double unit = 1.0;  // what a value of 1 stands for, for those who hear the value
};

// By how much a wheel reports that it was turned by one notch.
inline constexpr int kWheelNotch = 120;

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
        Unit(range.unit),
        Value(*this, range.value) {}

  const Orientation Direction;
  const std::int16_t Min, Max, SmallChange, LargeChange;
  const double Unit;
  ValueProperty Value;
  BarPress Pointer{*this};
  std::function<void()> Change;
  std::function<std::string()> Told;  // the value as the window writes it, for those who hear it

  // The user has moved the thumb to this value.
  void UserScroll(int value) {
    Events().Deliver([this, value] { Value = value; });
  }
  // The user has pressed an arrow of the bar, or beside the thumb: a small or a large change, up or
  // left where `direction` is -1, down or right where it is 1.
  void UserStep(int direction) { UserMove(direction * SmallChange); }
  void UserPage(int direction) { UserMove(direction * LargeChange); }
  // A key while the bar has the focus. Left and Up go back by a small change, Right and Down go on,
  // the page keys by a large one, Home and End to the ends. False for a key that does nothing here.
  bool UserKey(KeyCode key);
  // The wheel over the bar, turned by parts of kWheelNotch along either axis. One notch is one
  // small change, as the values are few and each has its own picture; parts of a notch add up.
  // Turned away from the user, or to the left, the value goes back.
  void UserWheel(double x, double y);
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

 private:
  void UserMove(int by) {
    Events().Deliver([this, by] { Value = Value + by; });
  }

  double wheel_ = 0.0;  // what has been turned since the last whole notch
};

}  // namespace toolkit
