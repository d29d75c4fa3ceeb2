#include <gtest/gtest.h>

#include "harness.h"

namespace {

using toolkit::Key;

// The keyboard first points at the crest, (6, 2).
struct Keyboard : Program {
  sketch::Sketch& eikona = window->eikona;
  explicit Keyboard(bool guess) {
    (guess ? window->GUESSFORCE : window->DYNAMEISDIAFORES).UserClick();
  }
  double X() { return eikona.KeyPointer.Get()->x; }
  bool Pulls() { return eikona.PointerOnCanvas()->tip.has_value(); }
  void Type(Key key, int times = 1, int shift = 0) {
    while (times-- > 0) eikona.UserKey(key, shift);
  }
  // The text box and the picture, to a hundredth of a pixel.
  std::string Shown() {
    std::string shown = window->Text1.Text;
    for (const Operation& o : Operations()) {
      for (const double part : {o.from.x, o.from.y, o.to.x, o.to.y, o.radius}) {
        shown += o.text + ' ' + std::to_string(std::lround(part * 100));
      }
    }
    return shown;
  }
};

TEST(KeyboardOnTheSketch, DoesWhatTheMouseDoes) {
  for (const bool guess : {false, true}) {
    Keyboard keys(guess), mouse(guess);
    std::string said;
    keys.eikona.AttachAnnouncer([&](const std::string& text) { said = text; });
    keys.Type(Key::Pick), mouse.Press(6, 2), mouse.Release(6, 2);
    EXPECT_EQ(keys.Shown(), mouse.Shown());
    if (!guess) continue;
    keys.Type(Key::Right, 10, 1), keys.Type(Key::Down, 2, 1), mouse.Press(6, 2, 1);
    EXPECT_TRUE(keys.Pulls() && said == "Force x = 5.0, y = -1.0") << said;
    keys.Type(Key::ShiftReleased), mouse.Release(11, 1, 1);
    EXPECT_EQ(keys.Shown(), mouse.Shown());
    EXPECT_EQ(said, "FORCE: HAS THE CORRECT DIRECTION FOR THE SHAPE OF THE CURVE");
  }
}

TEST(KeyboardOnTheSketch, JudgesOnlyWhenShiftIsLetGo) {
  for (int end = 0; end < 4; ++end) {
    Keyboard k(true);
    k.Type(Key::Up, 3, 1);
    if (end < 2) k.Type(end == 0 ? Key::Cancel : Key::Right);
    if (end == 2) k.window->DYNAMEISDIAFORES.UserClick();
    if (end == 3) k.Press(18, -2);
    EXPECT_EQ(k.Pulls(), end == 2);
    k.Forget(), k.Type(Key::ShiftReleased);
    EXPECT_TRUE(k.Operations().empty() && !k.Pulls());
  }
}

TEST(KeyboardOnTheSketch, PointsAtTheTrack) {
  Keyboard k(false);
  const auto at = [&](Key key) { return k.Type(key), k.X(); };
  EXPECT_TRUE(at(Key::End) == 20 && at(Key::Right) == 20);
  EXPECT_TRUE(at(Key::Home) == 0 && at(Key::Down) == 0);
  k.Type(Key::Up, 60), k.window->platosvalue.UserScroll(30);
  EXPECT_NEAR(std::hypot(k.X() - 6, k.eikona.KeyPointer.Get()->y - 3), 0, 1e-12);
}

}  // namespace
