#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "harness.h"
#include "window/format.h"

namespace {

using Window = app::firststep;

// A case in one word: what is shown (parameters, Label4, Command1, the step group, Option1, the
// other options), the two check marks, the selected options, the timer, its interval, the steps.
std::string State(Window& w) {
  std::string state;
  const std::vector<std::vector<toolkit::Control*>> groups = {
      {&w.platosvalue, &w.syxnotikamp, &w.epitaxyno, &w.arxikives, &w.Label1, &w.Label2, &w.Label3},
      {&w.Label4},
      {&w.Command1},
      {&w.VIMA, &w.vimatimi, &w.Label5},
      {&w.Option1},
      {&w.Option2, &w.Option3}};
  for (const auto& group : groups) {
    const bool shown = group[0]->Visible;
    state += shown ? '1' : '0';
    for (const auto* c : group) EXPECT_EQ(c->Visible, shown) << c->Name;
  }
  for (const int n : {+w.DYNAMEISDIAFORES.Checked, +w.GUESSFORCE.Checked,
                      w.Option1.Value + 2 * w.Option2.Value + 4 * w.Option3.Value,
                      +w.Timer1.Enabled, +w.Timer1.Interval, w.module.StepCount}) {
    state += std::to_string(n);
  }
  return state;
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

// The sketch has its corners at (0, 10) and (20, -10).
bool Standard(const Window& w) {
  const auto& map = w.eikona.ToPixels();
  const double x = (map.size.width - 1) / 20.0, y = (map.size.height - 1) / 20.0;
  return std::hypot(map.originX, map.factorX - x, map.originY - 10 * y) < 1e-9 && map.factorY < 0;
}

struct Handler {
  std::string name;
  void (*run)(Window&);
  std::string effect;  // on each letter of State; = unchanged, + one more
  std::string picture;
  bool standard;
};
const std::vector<Handler> kHandlers = {
    {"Option3", [](Window& w) { w.Option3.UserClick(); }, "1100==0040=0", "cFT", true},
    {"Option2", [](Window& w) { w.Option2.UserClick(); }, "0=11==002010", "c", true},
    {"Option1", [](Window& w) { w.Option1.UserClick(); }, "00======1=1=", "cCCT", true},
    {"campyles", [](Window& w) { w.campyles.UserClick(); }, "====0100====", "c", false},
    {"XANAPISO", [](Window& w) { w.XANAPISO.UserClick(); }, "110=========", "", false},
    {"DYNAMEIS", [](Window& w) { w.DYNAMEISDIAFORES.UserClick(); }, "======10====", "cCCT", true},
    {"GUESSFORCE", [](Window& w) { w.GUESSFORCE.UserClick(); }, "======01====", "cFT", true},
    {"Command1", [](Window& w) { w.Command1.UserClick(); }, "=========1=0", "", false},
    {"KSEKINA", [](Window& w) { w.KSEKINA.UserClick(); }, "=========1==", "", false},
    {"STAMATHMA", [](Window& w) { w.STAMATHMA.UserClick(); }, "=========0==", "", false},
    {"VIMA", [](Window& w) { w.VIMA.UserClick(); }, "=========0=+", "S", false},
    {"Timer1", [](Window& w) { w.Timer1_Timer(); }, "===========+", "S", false},
    {"parameters",
     [](Window& w) {
       for (auto* bar : {&w.platosvalue, &w.syxnotikamp, &w.epitaxyno, &w.arxikives}) {
         bar->UserScroll(9);
       }
     },
     "============", "cFcFcFcFT", false},
    {"vimatimi", [](Window& w) { w.vimatimi.UserScroll(99); }, "============", "", false},
};

// The cases to start from, each by the handlers that lead there.
const std::vector<std::string> kStarts = {"",
                                          "campyles Option2 Command1 Timer1 Timer1",
                                          "GUESSFORCE KSEKINA VIMA",
                                          "campyles Option2 DYNAMEIS KSEKINA XANAPISO",
                                          "Option1 Timer1",
                                          "campyles Option2 KSEKINA Timer1 GUESSFORCE"};

void Enter(Program& p, const std::string& way) {
  std::istringstream names(way);
  for (std::string name; names >> name;) {
    for (const Handler& h : kHandlers) {
      if (h.name == name) h.run(*p.window);
    }
  }
  p.window->Timer1.Interval = 7;
  p.window->eikona.Scale(-1, 1, 1, -1);
  p.window->Text1.Text = "before";
  p.Forget();
}

TEST(Cases, EveryHandlerFromEveryCase) {
  Program opening;
  EXPECT_EQ(State(*opening.window) + Picture(opening), "110000004010cFcFcCCT");
  for (const auto& way : kStarts) {
    for (const Handler& h : kHandlers) {
      Program p;
      Enter(p, way);
      std::string want = State(*p.window);
      const std::string picture = h.name == "GUESSFORCE" && want[7] == '1' ? "cT" : h.picture;
      if (h.name == "XANAPISO" && want[8] != '1') want[8] = '0';
      for (std::size_t i = 0; i < want.size(); ++i) {
        if (h.effect[i] == '+') ++want[i];
        if (h.effect[i] != '=' && h.effect[i] != '+') want[i] = h.effect[i];
      }
      h.run(*p.window);
      EXPECT_EQ(State(*p.window) + Picture(p), want + picture) << h.name << " after " << way;
      EXPECT_EQ(Standard(*p.window), h.standard) << h.name << " after " << way;
    }
  }
}

TEST(Cases, NothingRunsAfterTheEnd) {
  for (const auto& way : kStarts) {
    Program p;
    Enter(p, way);
    p.window->TERMATISMOS.UserClick();
    EXPECT_TRUE(p.desktop.ended && !p.window->Timer1.Enabled);
    const std::string ended = State(*p.window);
    for (const Handler& h : kHandlers) {
      if (h.name != "Timer1") h.run(*p.window);
    }
    p.desktop.Tick();
    p.Press(6, 2);
    EXPECT_EQ(State(*p.window) + Picture(p), ended);
  }
}

TEST(Cases, CaptionsInTheirSpacings) {
  Program p;
  Window& w = *p.window;
  const auto expect = [&](const std::string& want) {
    std::string captions;
    for (auto* label : {&w.Label1, &w.Label2, &w.Label3, &w.Label4, &w.Label5}) {
      captions += (captions.empty() ? "" : "|") + label->Caption.Get();
    }
    EXPECT_EQ(captions, want);
  };
  const auto move = [&](int amplitude, int frequency, int acceleration, int speed, int step) {
    w.platosvalue.UserScroll(amplitude);
    w.syxnotikamp.UserScroll(frequency);
    w.epitaxyno.UserScroll(acceleration);
    w.arxikives.UserScroll(speed);
    w.vimatimi.UserScroll(step);
  };
  const std::string at = "|Επιτρόχιος επιτάχυνση", v = "|Αρχική ταχύτητα";
  expect("Πλάτος =2.0|Συχνότης=1.5" + at + "= 2.00" + v + " = 3|Δt = 0.02");
  move(35, 60, -35, 0, 16);
  expect("Πλάτος =3.5|Συχνότης=6.0" + at + " = -3.5" + v + "= 0|Δt = 0.063");
  w.Option3.UserClick();
  expect("Πλάτος =3.5|Συχνότης=6.0" + at + "= -3.50" + v + " = 0|Δt = 0.063");
  move(1, 5, 0, 15, 300);
  expect("Πλάτος =0.1|Συχνότης=0.5" + at + " = 0.0" + v + "= 15|Δt = 0.003");
}

TEST(Format, RoundsHalfAwayFromZero) {
  const double inf = std::numeric_limits<double>::infinity();
  const std::pair<double, int> cases[] = {{0.0625, 3},      {1.005, 2}, {2.5, 0},
                                          {-2.5, 0},        {0.5, 0},   {0.45, 0},
                                          {-0.04, 1},       {-0.05, 1}, {-0.0, 2},
                                          {9.995, 2},       {99.96, 1}, {0.3 - 0.1 - 0.075, 2},
                                          {0.0049, 2},      {0.95, 0},  {1e-20, 2},
                                          {1234567.891, 2}, {-1e20, 1}, {5e-324, 3},
                                          {inf, 1},         {-inf, 0},  {std::nan(""), 2}};
  std::string shown;
  for (const auto& [value, decimals] : cases) shown += window::Format(value, decimals) + " ";
  EXPECT_EQ(shown,
            "0.063 1.01 3 -3 1 0 0.0 -0.1 0.00 10.00 100.0 0.13 0.00 1 0.00 1234567.89 "
            "-100000000000000000000.0 0.000    ");
}

// After a command (n none), a press or a release with a shift state, for a release after a press at
// (6, pressY): c clears, L draws lines, T tells about the circles.
TEST(Mouse, ActsByTheCheckMarks) {
  const std::tuple<char, char, int, double, std::string> cases[] = {
      {'n', 'd', 1, 2, "T"},  {'n', 'u', 1, 2, ""},  {'C', 'd', 1, 2, "T"}, {'C', 'u', 0, 2, "cL"},
      {'G', 'd', 0, 2, "cL"}, {'G', 'u', 1, 2, "L"}, {'G', 'u', 0, 2, ""},  {'G', 'u', 2, 2, ""},
      {'G', 'u', 3, 2, ""},   {'G', 'u', 5, 2, ""},  {'G', 'u', 1, -5, ""}};
  for (const auto& [mode, action, shift, pressY, want] : cases) {
    Program p;
    if (mode == 'C') p.window->DYNAMEISDIAFORES.UserClick();
    if (mode == 'G') p.window->GUESSFORCE.UserClick();
    if (action == 'u') p.Press(6, pressY);
    p.window->Text1.Text = "before";
    p.Forget();
    action == 'u' ? p.Release(6, 2, shift) : p.Press(6, 2, shift);
    std::string done = p.Count(Program::Kind::Clear) > 0 ? "c" : "";
    if (!p.Lines().empty()) done += 'L';
    if (p.window->Text1.Text.Get().starts_with("Centripetal towards the concave, ")) done += 'T';
    EXPECT_EQ(done, want) << mode << action << shift;
  }
}

}  // namespace
