#pragma once

#include "sketch/sketch.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/window.h"
#include "track/geometry.h"
#include "window/module1.h"

namespace window {

// The window as plain state: its controls with their design-time values, its menus, its timer and
// the shared variables. It knows no picture and no handler; the rooms above work on it.
// Places are twips in the client area. The order of the controls is the tab order.
struct Controls : toolkit::Window {
  explicit Controls(toolkit::Desktop& machine);
  ~Controls() override;

  using Label = toolkit::Label;
  using ScrollBar = toolkit::ScrollBar;
  using Way = toolkit::Orientation;

  sketch::Sketch eikona{
      *this, {"eikona", "Sketch", 720, 240, 4575, 3855, true}, toolkit::Colour{1, 0, 66}};
  toolkit::TextBox Text1{*this, {"Text1", "Explanation", 5400, 240, 3375, 6975, true}, "Text1"};

  toolkit::OptionButton Option1{*this,
                                options,
                                {"Option1", "Explanation of friction", 240, 4440, 1815, 495},
                                "EXHGHSH GIA TRIBH",
                                true};
  toolkit::OptionButton Option2{
      *this, options, {"Option2", "Time evolution", 240, 5160, 2655, 495}, "XPONIKH EXELIXH"};
  toolkit::OptionButton Option3{
      *this,
      options,
      {"Option3", "Factors that influence acceleration", 240, 5880, 2655, 495},
      "FACTORS THAT INFLUENCE ACCELERATION"};

  ScrollBar platosvalue{*this,
                        {"platosvalue", "Amplitude", 3000, 4800, 255, 735},
                        Way::Vertical,
                        {.min = 1, .max = 35, .value = 20, .largeChange = 5, .unit = 0.1}};
  Label Label1{*this, {"Label1", "Amplitude value", 3000, 5520, 495, 735}, "Label1"};
  ScrollBar syxnotikamp{*this,
                        {"syxnotikamp", "Frequency", 3000, 4080, 975, 375},
                        Way::Horizontal,
                        {.min = 1, .max = 60, .value = 15, .largeChange = 2, .unit = 0.1}};
  Label Label2{*this, {"Label2", "Frequency value", 3960, 4200, 1215, 255}, "Label2"};
  ScrollBar epitaxyno{*this,
                      {"epitaxyno", "Tangential acceleration", 3000, 4440, 975, 375},
                      Way::Horizontal,
                      {.min = -35, .max = 35, .value = 20, .largeChange = 1, .unit = 0.1}};
  Label Label3{*this, {"Label3", "Tangential acceleration value", 3960, 4560, 1575, 375}, "Label3"};
  ScrollBar arxikives{*this,
                      {"arxikives", "Initial speed", 3720, 4800, 255, 735},
                      Way::Vertical,
                      {.min = 0, .max = 15, .value = 3, .largeChange = 2}};
  Label Label4{*this, {"Label4", "Initial speed value", 3480, 5520, 1935, 495}, "Label4"};

  toolkit::CommandButton Command1{*this, {"Command1", "Start", 240, 4080, 1095, 375}, "start"};
  toolkit::CommandButton VIMA{*this, {"VIMA", "Step", 1320, 4080, 975, 375}, "STEP"};
  ScrollBar vimatimi{*this,
                     {"vimatimi", "Time steps per unit of time", 2280, 4080, 1335, 375},
                     Way::Horizontal,
                     {.min = 10, .max = 300, .value = 50, .largeChange = 10}};
  Label Label5{*this, {"Label5", "Time step value", 2280, 4440, 735, 375}, "Label5"};

  toolkit::MenuItem XANAPISO{*this, "XANAPISO", "back"};
  toolkit::MenuItem periptoseis{*this, "periptoseis", "CASES"};
  toolkit::MenuItem DYNAMEISDIAFORES{*this, "DYNAMEISDIAFORES", "RADIUS OF CURVATURE", true};
  toolkit::MenuItem GUESSFORCE{*this, "GUESSFORCE", "GUESS A FORCE", true};
  toolkit::MenuItem campyles{*this, "campyles", "TIME DEPENDENT"};
  toolkit::MenuItem STAMATHMA{*this, "STAMATHMA", "STOP"};
  toolkit::MenuItem KSEKINA{*this, "KSEKINA", "CONTINUE"};
  toolkit::MenuItem TERMATISMOS{*this, "TERMATISMOS", "end"};

  toolkit::Timer Timer1{*this, "Timer1", 1, true};

  Module1 module;
};

// The track and motion as the scroll bars stand now: A = value/10, w = value degrees of phase for
// each sketch unit, v0 = value, at = value/10.
track::Parameters TrackParameters(const Controls& firststep);

// The time step: timer interval / Δt scroll bar, in simulated time.
double TimeStep(const Controls& firststep);

// The coordinates that every picture works in: (0, 10) at the top left to (20, -10).
void StandardScale(sketch::Sketch& sketch);

}  // namespace window
