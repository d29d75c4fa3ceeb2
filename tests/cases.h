#pragma once

#include <map>
#include <string>

#include "app/firststep.h"

// The case that the window is in, a letter for each: the last digit of the steps, the timer, its
// interval, the standard scale; then what is to be seen: the two check marks, the selected options,
// the shown controls in tab order (sketch and explanation, the options, seven for the track and the
// initial speed, Label4, four for the run).
inline std::string State(const app::firststep& w) {
  const auto letter = [](int number) { return static_cast<char>('0' + number); };
  std::string state{letter(w.module.StepCount % 10),    letter(w.Timer1.Enabled),
                    letter(w.Timer1.Interval),          letter(w.eikona.ScaleWidth() == 20),
                    letter(w.DYNAMEISDIAFORES.Checked), letter(w.GUESSFORCE.Checked)};
  for (const toolkit::OptionButton* option : w.options.members) state += letter(option->Value);
  for (const toolkit::Control* control : w.controls) state += letter(control->Visible);
  return state;
}
inline const std::string kOpening = "00110000111000111111110000";
inline std::string Seen(const std::string& state) {
  return state.substr(4);
}

// What a handler does to each letter of the case (= nothing, + one more) and draws: c cleared,
// F factors, C a circle, S a step; T that it writes into Text1.
struct Handler {
  void (*run)(app::firststep&);
  std::string effect, picture;

  std::string After(std::string state) const {
    for (std::size_t i = 0; i < effect.size(); ++i) {
      if (effect[i] == '+') ++state[i];
      if (effect[i] != '=' && effect[i] != '+') state[i] = effect[i];
    }
    return state;
  }
};
using Window = app::firststep;
inline const std::map<std::string, Handler> kHandlers = {
    {"Option3", {[](Window& w) { w.Option3.UserClick(); }, "00=100001=====111111110000", "cFT"}},
    {"Option2", {[](Window& w) { w.Option2.UserClick(); }, "001100010=====0000000=1111", "c"}},
    {"Option1", {[](Window& w) { w.Option1.UserClick(); }, "==11==100=====00000000", "cCCT"}},
    {"campyles", {[](Window& w) { w.campyles.UserClick(); }, "====00=====011", "c"}},
    {"XANAPISO", {[](Window& w) { w.XANAPISO.UserClick(); }, "=======00=====111111110", ""}},
    {"DYNAMEIS", {[](Window& w) { w.DYNAMEISDIAFORES.UserClick(); }, "===110", "cCCT"}},
    {"GUESSFORCE", {[](Window& w) { w.GUESSFORCE.UserClick(); }, "===101", "cFT"}},
    {"Command1", {[](Window& w) { w.Command1.UserClick(); }, "01", ""}},
    {"KSEKINA", {[](Window& w) { w.KSEKINA.UserClick(); }, "=1", ""}},
    {"STAMATHMA", {[](Window& w) { w.STAMATHMA.UserClick(); }, "=0", ""}},
    {"VIMA", {[](Window& w) { w.VIMA.UserClick(); }, "+0", "S"}},
    {"Timer1", {[](Window& w) { w.events.Deliver(w.Timer1.Tick); }, "+", "S"}},
    {"amplitude", {[](Window& w) { w.platosvalue.UserScroll(9); }, "", "cFT"}},
    {"frequency", {[](Window& w) { w.syxnotikamp.UserScroll(9); }, "", "cFT"}},
    {"acceleration", {[](Window& w) { w.epitaxyno.UserScroll(9); }, "", "cFT"}},
    {"speed", {[](Window& w) { w.arxikives.UserScroll(9); }, "", "cFT"}}};
