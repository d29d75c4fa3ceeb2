#include <gtest/gtest.h>

#include <map>

#include "harness.h"

namespace {

using Counts = std::map<std::string, int>;

// A desktop that counts how often each component is refreshed.
struct CountingDesktop : toolkit::headless::HeadlessDesktop {
  using HeadlessDesktop::HeadlessDesktop;

  Counts counts;
  std::vector<std::unique_ptr<toolkit::Mirror>> mirrors;

  void Create(toolkit::Window& window) override {
    HeadlessDesktop::Create(window);
    std::vector<toolkit::Component*> all(window.controls.begin(), window.controls.end());
    all.insert(all.end(), {&window, window.timers[0]});
    for (toolkit::Component* component : all) {
      mirrors.push_back(std::make_unique<toolkit::Mirror>(
          *component, [this, component] { ++counts[component->Name]; }));
    }
  }
  void Destroy(toolkit::Window& window) override {
    mirrors.clear();
    HeadlessDesktop::Destroy(window);
  }
  Counts Taken() { return std::exchange(counts, {}); }
};

TEST(Mirrors, AreRefreshedOnceAnEvent) {
  CountingDesktop desktop(1366, 768);
  const auto window = app::Main(desktop);
  app::firststep& w = *window;
  // After loading, before the opening picture, which needs its canvas, and at the end.
  int all = 0;
  for (const auto& [name, count] : desktop.Taken()) {
    EXPECT_LE(count, 3) << name;
    all += count;
  }
  EXPECT_LE(all, 33);

  w.arxikives.UserScroll(9);
  EXPECT_EQ(desktop.Taken(),
            (Counts{{"arxikives", 1}, {"Label4", 1}, {"Text1", 1}, {"eikona", 1}}));
  for (const char* outside : {"of", "events", "events"}) w.Label1.Caption = outside;
  for (const int beyond : {400, 500}) w.vimatimi.UserScroll(beyond);  // the thumb must go back
  EXPECT_EQ(desktop.Taken(), (Counts{{"Label1", 2}, {"vimatimi", 2}, {"Label5", 1}}));

  w.VIMA.Click = [&] {
    for (const float place : {1.0F, 2.0F}) w.Label1.Left = place;
    EXPECT_EQ(desktop.counts, Counts{});
    for (int again = 0; again < 2; ++again) w.ShowChanges();
    EXPECT_EQ(desktop.counts, (Counts{{"Label1", 1}}));
    w.Label1.Caption = "in a handler";
    w.ShowMessage("done");
    w.Label1.Caption = "after the message";
  };
  desktop.whileMessageIsOpen = [&] {
    EXPECT_EQ(desktop.counts, (Counts{{"Label1", 2}}));
    w.Command1.UserClick();
  };
  w.Command1.Click = [&] { EXPECT_EQ(desktop.Taken(), (Counts{{"Label1", 3}})); };
  w.VIMA.UserClick();
  EXPECT_EQ(desktop.Taken(), Counts{});
}

// A widget that loses the focus by being hidden changes the state while its mirror is refreshed.
TEST(Mirrors, MayChangeTheState) {
  Program p;
  app::firststep& w = *p.window;
  int seen = 0;
  const toolkit::Mirror first(w.Label1, [&] { w.Label2.Caption = "changed in turn"; });
  const toolkit::Mirror second(w.Label2, [&] { ++seen; });
  w.Label1.Caption = "changed";
  EXPECT_EQ(seen, 1);
}

}  // namespace
