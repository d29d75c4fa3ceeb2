#pragma once

#include <string>
#include <vector>

#include "toolkit/menu.h"
#include "toolkit/option_button.h"
#include "toolkit/timer.h"

namespace toolkit {

class Window;

// The machine that a program runs on, as far as the program asks for it. Each backend is one.
class Desktop {
 public:
  virtual ~Desktop() = default;

  virtual float ScreenWidth() const = 0;   // twips
  virtual float ScreenHeight() const = 0;  // twips

  // Builds what shows the window and mirrors its state from then on; it is shown when Visible is
  // set.
  virtual void Create(Window& window) = 0;
  // Takes down what Create built, before the window's controls go.
  virtual void Destroy(Window& window) = 0;
  // A modal box with the text, one OK button and the application's title. Returns when it is
  // closed.
  virtual void ShowMessage(const std::string& text) = 0;
  // Closes the window and leaves the event loop with status 0.
  virtual void End() = 0;
};

inline constexpr int kGreekCharset = 161;

// The one window: its controls in tab order, its menus in menu-bar order, its timers.
class Window : public ControlSite, public Component {
 public:
  Window(Desktop& machine, std::string name, std::string caption);

  Desktop& desktop;
  const std::string Caption;
  Property<float> Left, Top, Width, Height;  // the outer size, in twips
  Property<bool> Visible;
  Property<int> FontCharset;  // for backends whose fonts come by character set

  std::vector<MenuItem*> menus;
  std::vector<Timer*> timers;
  OptionGroup options;

  void Show() { Visible = true; }

  // Ends the program: no event is delivered any more, the window closes, the timers stop.
  void End();
  // The user has closed the window.
  void UserClose() {
    events.Deliver([this] { End(); });
  }
};

}  // namespace toolkit
