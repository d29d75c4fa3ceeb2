#include "cases.h"

#include <gtest/gtest.h>

#include <sstream>

#include "harness.h"
#include "track/carlson.h"
#include "window/format.h"

namespace {

// What has been drawn and written lately, besides the window's state.
State Shown(Program& p) {
  State shown = StateOf(*p.window);
  shown["sketch"] = p.Count(Kind::Clear) > 0 ? "cleared" : "kept";
  shown["picture"] = "none";
  for (const auto& operation : p.Operations()) {
    if (operation.kind == Kind::Clear) shown["picture"] = "none";
    if (operation.kind == Kind::Circle) shown["picture"] = "curvature";
    if (operation.text == "TOTAL ACCELERATION") shown["picture"] = "factors";
    if (operation.text.starts_with("β = ")) shown["picture"] = "step";
  }
  shown["explanation"] = p.window->Text1.Text.Get() == "before" ? "kept" : "written";
  shown["program"] = p.desktop.ended ? "ended" : "running";
  return shown;
}

TEST(Cases, OpenTheProgram) {
  Program p;
  EXPECT_EQ(Differences(Shown(p), kCases.opening), "");
  EXPECT_EQ(Differences(kCases.opening, StateOf(*p.window)), "");
}

// From the cases that handlers lead to, with marks set on what a handler may set back.
TEST(Cases, EveryHandlerFromEveryCase) {
  const char* const ways[] = {"",
                              "campyles Option2 Command1 Timer1 Timer1",
                              "GUESSFORCE KSEKINA VIMA",
                              "campyles Option2 DYNAMEISDIAFORES KSEKINA XANAPISO",
                              "Option1 Timer1",
                              "campyles Option2 KSEKINA Timer1 GUESSFORCE"};
  for (const std::string way : ways) {
    for (const auto& [name, handler] : kCases.handlers) {
      SCOPED_TRACE(::testing::Message() << name << " " << handler.way << " after: " << way);
      Program p;
      std::istringstream steps(way);
      for (std::string step; steps >> step;) kCases.handlers.at(step).Run(*p.window);
      p.window->Timer1.Interval = 7;
      p.window->eikona.Scale(0, 1, 1, -1);
      p.window->Text1.Text = "before";
      p.Forget();

      const State before = Shown(p);
      EXPECT_EQ(before.at("scale"), "other");
      handler.Run(*p.window);
      EXPECT_EQ(Differences(Shown(p), handler.After(before)), "");

      // A scroll bar that is set to the value it has changes nothing.
      if (handler.way != "scroll") continue;
      p.Forget();
      handler.Run(*p.window);
      EXPECT_TRUE(p.Operations().empty());
    }
  }
}

// The opening captions, then the ends of all ranges, which are scrolled beyond.
TEST(Cases, CaptionsInTheirSpacings) {
  Program p;
  app::firststep& w = *p.window;
  const auto after = [&](const std::vector<int>& values) {
    p.Scroll(values);
    std::string captions;
    for (const auto* label : {&w.Label1, &w.Label2, &w.Label3, &w.Label4, &w.Label5}) {
      captions += label->Caption.Get() + "|";
    }
    return captions;
  };
  const std::string at = "|Επιτρόχιος επιτάχυνση", v = "|Αρχική ταχύτητα";
  EXPECT_EQ(after({20, 15, 20, 3, 50}),
            "Πλάτος =2.0|Συχνότης=1.5" + at + "= 2.00" + v + " = 3|Δt = 0.02|");
  EXPECT_EQ(after({36, 65537, -65537, -1, 9}),
            "Πλάτος =3.5|Συχνότης=6.0" + at + " = -3.5" + v + "= 0|Δt = 0.100|");
  p.Scroll({0, 0, 36, 16, 301});
  w.Option3.UserClick();
  EXPECT_EQ(after({}), "Πλάτος =0.1|Συχνότης=0.1" + at + "= 3.50" + v + " = 15|Δt = 0.003|");
}

// What comes in while a handler shows a message waits for its end; after "STOP" no tick is heard,
// after "end" nothing.
TEST(Events, WaitWhileAMessageIsOpen) {
  for (const bool end : {false, true}) {
    Program p;
    app::firststep& w = *p.window;
    std::string log;
    w.VIMA.Click = [&] { log += track::CarlsonRF(-1, 1, 1) == 0 ? "()" : "?"; };
    w.epitaxyno.Change = [&] { log += 's'; };
    w.Timer1.Tick = [&] { log += 't'; };
    w.Option1.Click = [&] { log += 'o'; };
    w.Timer1.Enabled = true;
    p.desktop.whileMessageIsOpen = [&] {
      w.epitaxyno.UserScroll(-3);
      if (!end) w.STAMATHMA.UserClick();
      for (int i = 0; i < 2; ++i) p.desktop.Tick();  // the second finds the first still waiting
      if (end) w.TERMATISMOS.UserClick();
      w.Option1.UserClick();
      EXPECT_TRUE(w.epitaxyno.Value == 20 && log.empty() && !p.desktop.ended);
    };
    w.VIMA.UserClick();
    w.events.Deliver(w.Timer1.Tick);
    EXPECT_EQ(log, end ? "()st" : "()sot");
    EXPECT_TRUE(p.desktop.ended == end && !w.Timer1.Enabled);
    EXPECT_EQ(p.desktop.messages, std::vector<std::string>{"invalid arguments in rf"});
  }
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
