#pragma once

#include <utility>

namespace toolkit {

// Whatever keeps state in properties and wants to hear when one of them has changed.
class Changeable {
 public:
  virtual ~Changeable() = default;
  virtual void Changed() = 0;
};

// One value of a control's state, read and set like a plain variable: `eikona.Height = 0.75F *
// Height`. Setting a value that is already there changes nothing and tells nobody.
template <class T>
class Property {
 public:
  Property(Changeable& owner, T value) : owner_(owner), value_(std::move(value)) {}
  Property(const Property&) = delete;
  ~Property() = default;

  Property& operator=(const T& value) {
    if (!(value == value_)) {
      value_ = value;
      owner_.Changed();
    }
    return *this;
  }
  // Takes over the other's value, not its owner: `VIMA.Top = Command1.Top`.
  Property& operator=(const Property& other) {
    if (this != &other) *this = other.value_;
    return *this;
  }
  operator const T&() const { return value_; }
  const T& Get() const { return value_; }

 private:
  Changeable& owner_;
  T value_;
};

}  // namespace toolkit
