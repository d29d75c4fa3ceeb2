#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "harness.h"
#include "window/format.h"

namespace {

using Window = app::firststep;

// A case in one word: what is shown (parameters, Label4, Command1, the step group, Option1, the
// other options), the two check marks, the selected options, the timer, its interval, the steps,
// and whether the sketch has its corners at (0, 10) and (20, -10). The walk holds groups together.
std::string State(Window& w) {
  const toolkit::Point first = w.eikona.ToPixels()(0, 10), last = w.eikona.ToPixels()(20, -10);
  const bool standard = std::hypot(first.x, first.y, std::hypot(last.x - 573, last.y - 573)) < 1e-9;
  const auto digits = [](auto... n) { return (std::to_string(n) + ...); };
  return digits(w.platosvalue.Visible.Get(), w.Label4.Visible.Get(), w.Command1.Visible.Get(),
                w.VIMA.Visible.Get(), w.Option1.Visible.Get(), w.Option2.Visible.Get(),
                w.DYNAMEISDIAFORES.Checked.Get(), w.GUESSFORCE.Checked.Get(),
                w.Option1.Value + 2 * w.Option2.Value + 4 * w.Option3.Value, w.Timer1.Enabled.Get(),
                w.Timer1.Interval.Get(), w.module.StepCount, standard);
}

// What has been drawn: c cleared, F factors, C a circle, S a step; and whether Text1 was written.
std::string Picture(Program& p) {
  std::string picture;
  for (const auto& o : p.Operations()) {
    if (o.kind == Program::Kind::Clear) picture += 'c';
    if (o.kind == Program::Kind::Circle) picture += 'C';
    if (o.text == "TOTAL ACCELERATION") picture += 'F';
    if (o.text.starts_with("β = ")) picture += 'S';
  }
  return picture + (p.window->Text1.Text.Get() == "before" ? "" : "T");
}

void ScrollTracks(Window& w) {
  for (auto* bar : {&w.platosvalue, &w.syxnotikamp, &w.epitaxyno, &w.arxikives}) bar->UserScroll(9);
}

struct Handler {
  void (*run)(Window&);
  std::string effect;  // on each letter of State; = unchanged, + one more
  std::string picture;
};
const std::map<std::string, Handler> kHandlers = {
    {"Option3", {[](Window& w) { w.Option3.UserClick(); }, "1100==0040=01", "cFT"}},
    {"Option2", {[](Window& w) { w.Option2.UserClick(); }, "0=11==0020101", "c"}},
    {"Option1", {[](Window& w) { w.Option1.UserClick(); }, "00======1=1=1", "cCCT"}},
    {"campyles", {[](Window& w) { w.campyles.UserClick(); }, "====0100=====", "c"}},
    {"XANAPISO", {[](Window& w) { w.XANAPISO.UserClick(); }, "110==========", ""}},
    {"DYNAMEIS", {[](Window& w) { w.DYNAMEISDIAFORES.UserClick(); }, "======10====1", "cCCT"}},
    {"GUESSFORCE", {[](Window& w) { w.GUESSFORCE.UserClick(); }, "======01====1", "cFT"}},
    {"Command1", {[](Window& w) { w.Command1.UserClick(); }, "=========1=0=", ""}},
    {"KSEKINA", {[](Window& w) { w.KSEKINA.UserClick(); }, "=========1===", ""}},
    {"STAMATHMA", {[](Window& w) { w.STAMATHMA.UserClick(); }, "=========0===", ""}},
    {"VIMA", {[](Window& w) { w.VIMA.UserClick(); }, "=========0=+=", "S"}},
    {"Timer1", {[](Window& w) { w.events.Deliver(w.Timer1.Tick); }, "===========+=", "S"}},
    {"parameters", {ScrollTracks, "=============", "cFcFcFcFT"}}};

// From the cases that handlers lead to, with marks set on what a handler may set back.
TEST(Cases, EveryHandlerFromEveryCase) {
  Program opening;
  EXPECT_EQ(State(*opening.window) + Picture(opening), "1100000040101cFcFcCCT");
  for (const std::string way :
       {"", "campyles Option2 Command1 Timer1 Timer1", "GUESSFORCE KSEKINA VIMA",
        "campyles Option2 DYNAMEIS KSEKINA XANAPISO", "Option1 Timer1",
        "campyles Option2 KSEKINA Timer1 GUESSFORCE"}) {
    for (const auto& [name, h] : kHandlers) {
      Program p;
      std::istringstream steps(way);
      for (std::string step; steps >> step;) kHandlers.at(step).run(*p.window);
      p.window->Timer1.Interval = 7;
      p.window->eikona.Scale(-1, 1, 1, -1);
      p.window->Text1.Text = "before";
      p.Forget();
      std::string want = State(*p.window);
      const std::string picture = name == "GUESSFORCE" && want[7] == '1' ? "cT" : h.picture;
      if (name == "XANAPISO" && want[8] != '1') want[8] = '0';
      for (std::size_t i = 0; i < want.size(); ++i) {
        if (h.effect[i] == '+') ++want[i];
        if (h.effect[i] != '=' && h.effect[i] != '+') want[i] = h.effect[i];
      }
      h.run(*p.window);
      EXPECT_EQ(State(*p.window) + Picture(p), want + picture) << name << " after " << way;
    }
  }
}

// The opening captions, then the ends of all ranges: amplitude, frequency, acceleration, speed and
// time step are scrolled beyond them.
TEST(Cases, CaptionsInTheirSpacings) {
  Program p;
  Window& w = *p.window;
  const auto after = [&](std::vector<int> values) {
    auto value = values.begin();
    for (auto* bar : {&w.platosvalue, &w.syxnotikamp, &w.epitaxyno, &w.arxikives, &w.vimatimi}) {
      bar->UserScroll(*value++);
    }
    return w.Label1.Caption.Get() + "|" + w.Label2.Caption.Get() + "|" + w.Label3.Caption.Get() +
           "|" + w.Label4.Caption.Get() + "|" + w.Label5.Caption.Get();
  };
  const std::string at = "|Επιτρόχιος επιτάχυνση", v = "|Αρχική ταχύτητα";
  EXPECT_EQ(after({20, 15, 20, 3, 50}),
            "Πλάτος =2.0|Συχνότης=1.5" + at + "= 2.00" + v + " = 3|Δt = 0.02");
  EXPECT_EQ(after({36, 61, -36, -1, 9}),
            "Πλάτος =3.5|Συχνότης=6.0" + at + " = -3.5" + v + "= 0|Δt = 0.100");
  after({0, 0, 36, 16, 301});
  w.Option3.UserClick();
  EXPECT_EQ(after({0, 0, 36, 16, 301}),
            "Πλάτος =0.1|Συχνότης=0.1" + at + "= 3.50" + v + " = 15|Δt = 0.003");
}

TEST(Format, RoundsHalfAwayFromZero) {
  const auto shown = [](int decimals, auto... values) {
    return ((window::Format(values, decimals) + " ") + ...);
  };
  EXPECT_EQ(shown(0, 2.5, -2.5, 0.5, 0.45, 0.95, 1234567.891, NAN), "3 -3 1 0 1 1234568  ");
  EXPECT_EQ(shown(1, -0.04, -0.05, 99.96, -1e15, INFINITY), "0.0 -0.1 100.0 -1000000000000000.0  ");
  EXPECT_EQ(shown(2, 1.005, -0.0, 9.995, 0.3 - 0.1 - 0.075, 0.0049, 1e-20, 5e-324, 12),
            "1.01 0.00 10.00 0.13 0.00 0.00 0.00 12.00 ");
}

}  // namespace
