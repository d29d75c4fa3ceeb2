#pragma once

#include <string>
#include <vector>

#include "toolkit/menu.h"
#include "toolkit/option_button.h"
#include "toolkit/timer.h"
#include "toolkit/zoom.h"

namespace toolkit {

class Window;

// The machine that a program runs on, as far as the program asks for it. Each backend is one.
//
// A desktop outlives the window that it shows. The program's start returns while the window lives
// on: whoever started it keeps the window until the desktop says that the program has ended.
//
// The screen is asked for at the start and in the window's layout. When it changes later (another
// resolution, a monitor that leaves, another zoom of the page), the layout stays: the desktop gives
// the window the free part that is there then and shows everything larger or smaller.
class Desktop {
 public:
  virtual ~Desktop() = default;

  // The free part of the screen, without panels, as large as the window may take it for: in twips
  // of the zoom that the desktop has chosen (see ViewOf). Asked after Create.
  virtual float ScreenWidth() const = 0;
  virtual float ScreenHeight() const = 0;

  // Builds what shows the window and mirrors its state from then on; it is shown when Visible is
  // set.
  virtual void Create(Window& window) = 0;
  // Takes down what Create built, before the window's controls go.
  virtual void Destroy(Window& window) = 0;
  // A modal box with the text, one OK button and the application's title. Returns when it is
  // closed; what arrives meanwhile waits for the handler that opened it.
  virtual void ShowMessage(const std::string& text) = 0;
  // Closes the window and leaves the event loop with status 0.
  virtual void End() = 0;
};

inline constexpr int kGreekCharset = 161;

// The one window: its controls in tab order, its menus in menu-bar order, its timers.
class Window : public ControlSite, public Component {
 public:
  Window(Desktop& machine, std::string name, std::string caption, const Room& room);

  Desktop& desktop;
  const std::string Caption;
  const Room Surroundings;                   // what the layout will need around its picture
  Property<float> Left, Top, Width, Height;  // the outer size, in twips
  Property<bool> Visible;
  Property<int> FontCharset;  // for backends whose fonts come by character set

  std::vector<MenuItem*> menus;
  std::vector<Timer*> timers;
  OptionGroup options;

  void Show() { Visible = true; }

  // Shows a message and waits until it is closed. What the handler has set by then is on the screen
  // before the box opens.
  void ShowMessage(const std::string& text) {
    ShowChanges();
    desktop.ShowMessage(text);
  }

  // Ends the program: no event is delivered any more, the window closes, the timers stop.
  void End();
  // The user has closed the window.
  void UserClose() {
    events.Deliver([this] { End(); });
  }
};

}  // namespace toolkit
