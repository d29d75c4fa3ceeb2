#include <gtest/gtest.h>

#include "harness.h"

namespace {

using toolkit::Key;

// The keyboard first points at the crest, (6, 2).
struct Keyboard : Program {
  app::firststep& w = *window;

  explicit Keyboard(bool guess) {
    (guess ? w.GUESSFORCE : w.DYNAMEISDIAFORES).UserClick(), Forget();
  }
  void Type(Key key, int times = 1, int shift = 0) {
    for (int i = 0; i < times; ++i) w.eikona.UserKey(key, shift);
  }
  // What the picture shows, to a hundredth of a pixel, and the text box.
  std::string Shown() {
    std::string shown = w.Text1.Text;
    for (const Operation& o : Operations()) {
      for (const double number : {o.from.x, o.from.y, o.to.x, o.to.y, o.radius}) {
        shown += ' ' + std::to_string(std::lround(number * 100));
      }
      shown += ' ' + std::to_string(static_cast<int>(o.kind)) + o.text;
    }
    return shown;
  }
};

TEST(KeyboardOnTheSketch, DoesWhatTheMouseDoes) {
  for (const bool guess : {false, true}) {
    Keyboard keys(guess), mouse(guess);
    std::string said;
    keys.w.eikona.AttachAnnouncer([&](const std::string& text) { said = text; });
    keys.Type(Key::Pick);
    mouse.Press(6, 2), mouse.Release(6, 2);
    EXPECT_EQ(keys.Count(Program::Kind::Circle), 1);
    EXPECT_EQ(keys.Shown(), mouse.Shown());
    if (!guess) continue;
    keys.Type(Key::Right, 10, 1), keys.Type(Key::Down, 2, 1);
    EXPECT_EQ(said, "Force x = 5.0, y = -1.0");
    keys.Type(Key::ShiftReleased);
    EXPECT_EQ(said, "FORCE: HAS THE CORRECT DIRECTION FOR THE SHAPE OF THE CURVE");
    mouse.Press(6, 2, 1), mouse.Release(11, 1, 1);
    EXPECT_EQ(keys.Shown(), mouse.Shown());
  }
}

TEST(KeyboardOnTheSketch, JudgesOnlyWhenShiftIsLetGo) {
  for (int end = 0; end < 4; ++end) {
    Keyboard k(true);
    k.Type(Key::Up, 3, 1);
    EXPECT_TRUE(k.w.eikona.PointerOnCanvas()->tip);
    if (end < 2) k.Type(end == 0 ? Key::Cancel : Key::Right);
    if (end == 2) k.w.DYNAMEISDIAFORES.UserClick();
    if (end == 3) k.Press(18, -2);
    EXPECT_EQ(k.w.eikona.PointerOnCanvas()->tip.has_value(), end == 2);
    k.Forget(), k.Type(Key::ShiftReleased);
    EXPECT_TRUE(k.Operations().empty() && !k.w.eikona.PointerOnCanvas()->tip);
  }
}

TEST(KeyboardOnTheSketch, PointsAtTheTrack) {
  Keyboard k(false);
  const auto at = [&](Key key, int times) {
    k.Type(key, times);
    return k.w.eikona.KeyPointer.Get()->x;
  };
  EXPECT_TRUE(at(Key::Down, 80) == 0 && at(Key::End, 1) == 20 && at(Key::Right, 1) == 20);
  EXPECT_TRUE(at(Key::Home, 1) == 0 && std::abs(at(Key::Up, 60) - 6) < 1e-12);
  k.w.platosvalue.UserScroll(30);
  EXPECT_NEAR(k.w.eikona.KeyPointer.Get()->y, 3, 1e-12);
}

}  // namespace
