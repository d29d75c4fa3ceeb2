#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/event_queue.h"
#include "toolkit/property.h"

namespace toolkit {

class ControlVisitor;
class Component;
class Control;
class Mirror;

// Lengths on the window are twips: 1/1440 inch, 15 to a pixel at 96 dots per inch.
inline constexpr float kTwipsPerPixel = 15.0F;

// Where controls live: the queue that their events go through, and all of them in tab order.
class ControlSite {
 public:
  EventQueue events{[this] { ShowChanges(); }};
  std::vector<Control*> controls;

  // Brings to the screen what has changed so far. After each event this happens by itself; a
  // handler calls it when it needs the screen before it ends: to draw on a canvas that it has made
  // larger, or to wait for the user.
  void ShowChanges();

 private:
  friend class Component;
  std::vector<Component*> changed_;
};

// Anything with a name of its own that a backend can mirror: controls, menu items, the timer.
class Component : public Changeable {
 public:
  Component(ControlSite& site, std::string name) : Name(std::move(name)), site_(site) {}
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  const std::string Name;
  std::string Hint;  // one line that says what this is for, where its caption does not; or empty

  // Shown after the event that runs, or at once when none does.
  void Changed() override;

 protected:
  EventQueue& Events() { return site_.events; }

 private:
  friend class ControlSite;
  friend class Mirror;
  ControlSite& site_;
  Mirror* mirror_ = nullptr;
  bool changed_ = false;
};

// A backend's image of a component, for as long as it lives. `refresh` takes over the state; it is
// called once for all that an event has changed, after the event's handler has ended.
class Mirror {
 public:
  Mirror(Component& component, std::function<void()> refresh);
  virtual ~Mirror();
  Mirror(const Mirror&) = delete;
  Mirror& operator=(const Mirror&) = delete;

  const std::function<void()> Refresh;

 private:
  Component& component_;
};

// A control's design-time place in its window, in twips from the top left of the client area.
struct Design {
  std::string name;
  std::string accessibleName;  // what a screen reader calls it
  float left, top, width, height;
  bool visible = false;
};

// The state that every visible control has. Geometry is kept in twips exactly as it was set, never
// in rounded pixels, so that a layout computed from it does not depend on the screen.
class Control : public Component {
 public:
  Control(ControlSite& site, const Design& design);

  const std::string AccessibleName;
  Property<float> Left, Top, Width, Height;
  Property<bool> Visible;
  Property<std::string> FontName;
  Property<float> FontSize;  // points

  float Right() const { return Left + Width; }
  float Bottom() const { return Top + Height; }

  virtual void Accept(ControlVisitor& visitor) = 0;
};

}  // namespace toolkit
