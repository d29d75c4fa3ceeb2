#include "app/firststep.h"
#include "scenes/factors_scene.h"
#include "window/format.h"

namespace app {

using window::Format;

void firststep::platosvalue_Change() {
  Label1.Caption = "Πλάτος =" + Format(platosvalue.Value / 10.0, 1);
  eikona.Cls();
  scenes::DrawFactorsScene(*this);
  FollowTrack();
}

void firststep::syxnotikamp_Change() {
  eikona.Cls();
  scenes::DrawFactorsScene(*this);
  FollowTrack();
  Label2.Caption = "Συχνότης=" + Format(syxnotikamp.Value / 10.0, 1);
}

void firststep::epitaxyno_Change() {
  Label3.Caption = "Επιτρόχιος επιτάχυνση = " + Format(epitaxyno.Value / 10.0, 1);
  eikona.Cls();
  scenes::DrawFactorsScene(*this);
}

void firststep::arxikives_Change() {
  Label4.Caption = "Αρχική ταχύτητα= " + Format(arxikives.Value, 0);
  eikona.Cls();
  scenes::DrawFactorsScene(*this);
}

}  // namespace app
