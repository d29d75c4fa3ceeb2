#include "app/firststep.h"
#include "evolution/step.h"
#include "window/format.h"

namespace app {

// The sketch is not cleared: the new run is drawn over the old one, to be compared with it.
void firststep::Command1_Click() {
  module.StepCount = 0;
  module.ElapsedTime = 0.0;
  Timer1.Enabled = true;
}

void firststep::VIMA_Click() {
  Timer1.Enabled = false;
  evolution::StepTimeEvolution(*this);
}

void firststep::STAMATHMA_Click() {
  Timer1.Enabled = false;
}

void firststep::KSEKINA_Click() {
  Timer1.Enabled = true;
}

void firststep::Timer1_Timer() {
  evolution::StepTimeEvolution(*this);
}

void firststep::vimatimi_Change() {
  Label5.Top = vimatimi.Bottom();
  Label5.Caption = "Δt = " + window::Format(window::TimeStep(*this), 3);
}

}  // namespace app
