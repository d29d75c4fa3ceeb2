#include <initializer_list>

#include "app/firststep.h"
#include "scenes/curvature_scene.h"
#include "scenes/factors_scene.h"
#include "window/format.h"

namespace app {

using window::Format;

namespace {
constexpr const char* kNothingShown = "The sketch is empty";
}  // namespace

void firststep::ShowParameters(bool shown) {
  for (toolkit::Control* control : std::initializer_list<toolkit::Control*>{
           &platosvalue, &syxnotikamp, &epitaxyno, &arxikives, &Label1, &Label2, &Label3}) {
    control->Visible = shown;
  }
}

void firststep::ShowParameterValues() {
  Label2.Caption = "Συχνότης=" + Format(syxnotikamp.Value / 10.0, 1);
  Label3.Caption = "Επιτρόχιος επιτάχυνση= " + Format(epitaxyno.Value / 10.0, 2);
  Label1.Caption = "Πλάτος =" + Format(platosvalue.Value / 10.0, 1);
  Label4.Caption = "Αρχική ταχύτητα = " + Format(arxikives.Value, 0);
}

void firststep::ShowTimeEvolution(bool shown) {
  for (toolkit::Control* control :
       std::initializer_list<toolkit::Control*>{&Command1, &VIMA, &vimatimi, &Label5}) {
    control->Visible = shown;
  }
}

void firststep::ShowEmptySketch() {
  eikona.Cls();
  eikona.Description = kNothingShown;
}

// Runs once, before the window is sized or shown. What it draws is gone before anybody sees it;
// what lasts is the shown controls, the captions, the selection and the stopped timer.
void firststep::Form_Load() {
  Timer1.Enabled = false;
  ShowParameters(true);
  Label4.Visible = true;
  GUESSFORCE.Checked = false;
  module.StepCount = 0;
  ShowParameterValues();
  Option1.Value = false;
  Option2.Value = false;
  // Not selected at design time, so selecting it runs Option3_Click to its end first.
  Option3.Value = true;
  Command1.Visible = false;
  window::StandardScale(eikona);
  eikona.Cls();
  scenes::DrawFactorsScene(*this);
}

void firststep::Option3_Click() {
  FontCharset = toolkit::kGreekCharset;
  DYNAMEISDIAFORES.Checked = false;
  GUESSFORCE.Checked = false;
  Timer1.Enabled = false;
  module.StepCount = 0;
  ShowParameters(true);
  Label4.Visible = true;
  ShowTimeEvolution(false);
  ShowParameterValues();
  window::StandardScale(eikona);
  eikona.Cls();
  scenes::DrawFactorsScene(*this);
}

void firststep::Option2_Click() {
  DYNAMEISDIAFORES.Checked = false;
  GUESSFORCE.Checked = false;
  Timer1.Interval = 1;
  Timer1.Enabled = false;
  module.StepCount = 0;
  ShowParameters(false);
  ShowTimeEvolution(true);
  window::StandardScale(eikona);
  ShowEmptySketch();
}

void firststep::Option1_Click() {
  ShowParameters(false);
  Label4.Visible = false;
  ArrangeWindow();
}

void firststep::campyles_Click() {
  DYNAMEISDIAFORES.Checked = false;
  GUESSFORCE.Checked = false;
  ShowEmptySketch();
  Option2.Visible = true;
  Option3.Visible = true;
  Option1.Visible = false;
}

void firststep::XANAPISO_Click() {
  Command1.Visible = false;
  Option2.Value = false;
  Option3.Value = false;
  ShowParameters(true);
  Label4.Visible = true;
}

void firststep::TERMATISMOS_Click() {
  End();
}

void firststep::DYNAMEISDIAFORES_Click() {
  DYNAMEISDIAFORES.Checked = true;
  GUESSFORCE.Checked = false;
  eikona.Cls();
  window::StandardScale(eikona);
  scenes::DrawCurvatureScene(*this);
}

void firststep::GUESSFORCE_Click() {
  window::StandardScale(eikona);
  eikona.Cls();
  DYNAMEISDIAFORES.Checked = false;
  Text1.Text =
      "If you click on the sketch, the vectors depicting FRICTION, VELOCITY, ACCELERATION "
      "(centripetal, tangential) appear. Press SHIFT and drag the mouse from a point on the curve "
      "to draw a FORCE that explains the SHAPE and TANGENTIAL acceleration";
  if (GUESSFORCE.Checked) {
    eikona.Description = kNothingShown;
    return;
  }
  GUESSFORCE.Checked = true;
  scenes::DrawFactorsScene(*this);
}

}  // namespace app
