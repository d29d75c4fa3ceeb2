#include "app/firststep.h"

#include <string>
#include <string_view>

#include "track/carlson.h"

namespace app {

firststep::firststep(toolkit::Desktop& machine) : Controls(machine) {
  track::InvalidArgumentsReport() = [this](std::string_view text) {
    ShowMessage(std::string(text));
  };
  BindHandlers();
  events.Deliver([this] { Form_Load(); });
}

firststep::~firststep() {
  track::InvalidArgumentsReport() = nullptr;
}

void firststep::BindHandlers() {
  XANAPISO.Click = [this] { XANAPISO_Click(); };
  DYNAMEISDIAFORES.Click = [this] { DYNAMEISDIAFORES_Click(); };
  GUESSFORCE.Click = [this] { GUESSFORCE_Click(); };
  campyles.Click = [this] { campyles_Click(); };
  STAMATHMA.Click = [this] { STAMATHMA_Click(); };
  KSEKINA.Click = [this] { KSEKINA_Click(); };
  TERMATISMOS.Click = [this] { TERMATISMOS_Click(); };
  Option1.Click = [this] { Option1_Click(); };
  Option2.Click = [this] { Option2_Click(); };
  Option3.Click = [this] { Option3_Click(); };
  platosvalue.Change = [this] { platosvalue_Change(); };
  syxnotikamp.Change = [this] { syxnotikamp_Change(); };
  epitaxyno.Change = [this] { epitaxyno_Change(); };
  arxikives.Change = [this] { arxikives_Change(); };
  vimatimi.Change = [this] { vimatimi_Change(); };
  Command1.Click = [this] { Command1_Click(); };
  VIMA.Click = [this] { VIMA_Click(); };
  Timer1.Tick = [this] { Timer1_Timer(); };
  eikona.MouseDown = [this](short button, short shift, float x, float y) {
    eikona_MouseDown(button, shift, x, y);
  };
  eikona.MouseUp = [this](short button, short shift, float x, float y) {
    eikona_MouseUp(button, shift, x, y);
  };
  eikona.CursorOver = [this](float x, float y, bool pressed) {
    return eikona_Cursor(x, y, pressed);
  };
  eikona.KeyDown = [this](toolkit::Key key, short shift) { eikona_KeyDown(key, shift); };
}

std::unique_ptr<firststep> Main(toolkit::Desktop& machine) {
  auto window = std::make_unique<firststep>(machine);
  window->events.Deliver([&] {
    window->Width = machine.ScreenWidth();
    window->Height = machine.ScreenHeight();
    window->DYNAMEISDIAFORES.Checked = false;
    window->ArrangeWindow();
  });
  return window;
}

}  // namespace app
