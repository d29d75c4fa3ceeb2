#include "window/controls.h"

#include "track/arc_length.h"

namespace window {

Controls::Controls(toolkit::Desktop& machine) : Window(machine, "firststep", "first explanation") {
  periptoseis.items = {&DYNAMEISDIAFORES, &GUESSFORCE};
  menus = {&XANAPISO, &periptoseis, &campyles, &STAMATHMA, &KSEKINA, &TERMATISMOS};
  timers = {&Timer1};
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
