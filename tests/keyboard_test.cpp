#include <gtest/gtest.h>

#include "harness.h"

namespace {

using toolkit::Key;

// In the guess mode. The keyboard first points at the crest, (6, 2).
struct Keyboard : Program {
  sketch::Sketch& eikona = window->eikona;
  std::string said;
  Keyboard() {
    window->GUESSFORCE.UserClick();
    eikona.AttachAnnouncer([this](const std::string& text) { said = text; });
  }
  double Type(Key key, int times = 1, int shift = 0) {
    while (times-- > 0) eikona.UserKey(key, shift);
    return eikona.KeyPointer.Get()->x;
  }
  std::string Shown() {
    std::string shown = said + window->Text1.Text.Get() + eikona.Description.Get();
    for (const auto& o : Operations()) shown += std::to_string(std::lround(9 * o.to.x + o.to.y));
    return shown;
  }
};

TEST(KeyboardOnTheSketch, DoesWhatTheMouseDoes) {
  Keyboard keys, mouse;
  keys.Type(Key::Pick), mouse.Press(6, 2), mouse.Release(6, 2), mouse.said = keys.said;
  EXPECT_EQ(keys.Shown(), mouse.Shown());
  keys.Type(Key::Right, 10, 1), keys.Type(Key::Down, 2, 1);
  EXPECT_EQ(keys.said, "Force x = 5.0, y = -1.0");
  keys.Type(Key::ShiftReleased), mouse.Press(6, 2, 1), mouse.Release(11, 1, 1);
  EXPECT_EQ(keys.Shown(), mouse.Shown());
}

TEST(KeyboardOnTheSketch, JudgesOnlyWhenShiftIsLetGo) {
  for (int end = 0; end < 4; ++end) {
    Keyboard k;
    k.Type(Key::Up, 3, 1);
    k.Forget();
    if (end < 2) k.Type(end == 0 ? Key::Cancel : Key::Right);
    EXPECT_EQ(k.Said().find("FORCE:"), std::string::npos);
    if (end == 2) k.window->DYNAMEISDIAFORES.UserClick();
    if (end == 3) k.Press(18, -2);
    EXPECT_EQ(k.eikona.PointerOnCanvas()->tip.has_value(), end == 2);
    k.Forget(), k.Type(Key::ShiftReleased);
    EXPECT_TRUE(k.Operations().empty() && !k.eikona.PointerOnCanvas()->tip);
  }
}

TEST(KeyboardOnTheSketch, PointsAtTheTrack) {
  Keyboard k;
  EXPECT_TRUE(k.Type(Key::End) == 20 && k.Type(Key::Right) == 20);
  EXPECT_TRUE(k.Type(Key::Home) == 0 && k.Type(Key::Down) == 0);
  EXPECT_NEAR(k.Type(Key::Up, 60), 6, 1e-12);
  k.window->platosvalue.UserScroll(30);
  EXPECT_NEAR(k.eikona.KeyPointer.Get()->y, 3, 1e-12);
}

}  // namespace
