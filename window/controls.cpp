#include "window/controls.h"

#include <initializer_list>
#include <string>
#include <utility>

#include "track/arc_length.h"
#include "window/hints.h"

namespace window {
namespace {

// What the layout places around the sketch, in pixels: to its left 48 and to its right the text
// box, 465 high; above it 16 and under it three rows of 33. The row of scroll bars would do with a
// width of 716; but the sketch is to be as high as the text box, and so as wide.
constexpr toolkit::Room kAroundSketch{.share = 0.75,
                                      .beside = 48.0 + 225.0,
                                      .under = 16.0 + 99.0,
                                      .narrowest = 48.0 + 225.0 + 465.0,
                                      .lowest = 465.0};

// The number behind a label's "=".
std::string NumberOf(const toolkit::Label& label) {
  const std::string& caption = label.Caption;
  return caption.substr(caption.find_first_not_of(' ', caption.find('=') + 1));
}

}  // namespace

Controls::Controls(toolkit::Desktop& machine)
    : Window(machine, "firststep", "first explanation", kAroundSketch) {
  periptoseis.items = {&DYNAMEISDIAFORES, &GUESSFORCE};
  menus = {&XANAPISO, &periptoseis, &campyles, &STAMATHMA, &KSEKINA, &TERMATISMOS};
  timers = {&Timer1};
  for (toolkit::Control* control : controls) control->Hint = HintOf(control->Name);
  for (const auto* items : {&menus, &periptoseis.items}) {
    for (toolkit::MenuItem* item : *items) item->Hint = HintOf(item->Name);
  }
  using Row = std::pair<ScrollBar*, Label*>;
  for (const auto& [bar, label] : std::initializer_list<Row>{{&platosvalue, &Label1},
                                                             {&syxnotikamp, &Label2},
                                                             {&epitaxyno, &Label3},
                                                             {&arxikives, &Label4}}) {
    bar->Told = [shown = label] { return NumberOf(*shown); };
  }
  vimatimi.Told = [this] { return std::to_string(vimatimi.Value) + ", Δt = " + NumberOf(Label5); };
  desktop.Create(*this);
}

Controls::~Controls() {
  desktop.Destroy(*this);
}

track::Parameters TrackParameters(const Controls& firststep) {
  return {.amplitude = firststep.platosvalue.Value / 10.0,
          .frequency = firststep.syxnotikamp.Value * track::Pi / 180.0,
          .initialSpeed = static_cast<double>(firststep.arxikives.Value),
          .tangentialAcceleration = firststep.epitaxyno.Value / 10.0};
}

double TimeStep(const Controls& firststep) {
  return static_cast<double>(firststep.Timer1.Interval) / firststep.vimatimi.Value;
}

void StandardScale(sketch::Sketch& sketch) {
  sketch.Scale(0, 10, 20, -10);
}

}  // namespace window
