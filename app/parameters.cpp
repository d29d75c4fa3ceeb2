#include "app/firststep.h"
#include "scenes/factors_scene.h"
#include "window/format.h"

namespace app {

using window::Format;

void firststep::RedrawFactors() {
  eikona.Cls();
  scenes::DrawFactorsScene(*this);
  FollowTrack();
}

void firststep::platosvalue_Change() {
  Label1.Caption = "Πλάτος =" + Format(platosvalue.Value / 10.0, 1);
  RedrawFactors();
}

void firststep::syxnotikamp_Change() {
  RedrawFactors();
  Label2.Caption = "Συχνότης=" + Format(syxnotikamp.Value / 10.0, 1);
}

void firststep::epitaxyno_Change() {
  Label3.Caption = "Επιτρόχιος επιτάχυνση = " + Format(epitaxyno.Value / 10.0, 1);
  RedrawFactors();
}

void firststep::arxikives_Change() {
  Label4.Caption = "Αρχική ταχύτητα= " + Format(arxikives.Value, 0);
  RedrawFactors();
}

}  // namespace app
