#include <gtest/gtest.h>

#include "harness.h"

namespace {

using toolkit::Key;

// In the guess mode. The keyboard first points at the crest, (6, 2).
struct Keyboard : Motion {
  sketch::Sketch& eikona = window->eikona;
  std::string said;

  Keyboard() : Motion(20, 15, 3, 20) {
    window->GUESSFORCE.UserClick();
    eikona.AttachAnnouncer([this](const std::string& text) { said = text; });
  }

  void Type(Key key, int times = 1, int shift = 0) {
    while (times-- > 0) eikona.UserKey(key, shift);
  }
  // With SHIFT, by whole presses of the arrow keys.
  void Pull(int right, int up) {
    Type(right > 0 ? Key::Right : Key::Left, std::abs(right), toolkit::kShiftMask);
    Type(up > 0 ? Key::Up : Key::Down, std::abs(up), toolkit::kShiftMask);
  }
  bool Pulls() { return eikona.PointerOnCanvas()->tip.has_value(); }

  // The same picture and the same words.
  void ExpectLike(Keyboard& other) {
    for (const Kind kind : {Kind::Line, Kind::Circle, Kind::Dot, Kind::Text}) {
      std::ranges::copy(kind == Kind::Line ? other.Arrows() : other.Read(kind),
                        std::back_inserter(expected));
    }
    EXPECT_EQ(Wrong(1e-9), "");
    EXPECT_EQ(window->Text1.Text.Get(), other.window->Text1.Text.Get());
    EXPECT_EQ(eikona.Description.Get(), other.eikona.Description.Get());
  }
};

TEST(KeyboardOnTheSketch, DoesWhatTheMouseDoes) {
  Keyboard keys, mouse;
  keys.Type(Key::Pick);
  mouse.Press(6, 2);
  mouse.Release(6, 2);
  keys.ExpectLike(mouse);
  keys.Pull(20, -4);
  EXPECT_EQ(keys.said, "Force x = 5.00, y = -1.00");
  keys.Type(Key::ShiftReleased);
  mouse.Press(6, 2, 1);
  mouse.Release(11, 1, 1);
  keys.ExpectLike(mouse);
  EXPECT_EQ(keys.said, mouse.said);
  EXPECT_EQ(keys.said, "FORCE: HAS THE CORRECT DIRECTION FOR THE SHAPE OF THE CURVE");
}

TEST(KeyboardOnTheSketch, JudgesOnlyWhenShiftIsLetGo) {
  const std::pair<const char*, std::function<void(Keyboard&)>> ends[] = {
      {"Escape", [](Keyboard& k) { k.Type(Key::Cancel); }},
      {"an arrow key alone", [](Keyboard& k) { k.Type(Key::Right); }},
      {"a pick", [](Keyboard& k) { k.Type(Key::Pick); }},
      {"SHIFT let go with CTRL", [](Keyboard& k) { k.Type(Key::ShiftReleased, 1, 2); }},
      {"the focus gone", [](Keyboard& k) { k.eikona.UserFocusLost(); }},
      {"another case", [](Keyboard& k) { k.window->DYNAMEISDIAFORES.UserClick(); }},
      {"the mouse", [](Keyboard& k) { k.Press(18, -2); }}};
  for (const auto& [what, happens] : ends) {
    SCOPED_TRACE(what);
    Keyboard k;
    k.Pull(0, 3);
    k.Forget();
    happens(k);
    EXPECT_EQ(k.Said().find("FORCE:"), std::string::npos);
    EXPECT_EQ(k.Pulls(), k.window->DYNAMEISDIAFORES.Checked);
    k.Forget();
    k.Type(Key::ShiftReleased);
    EXPECT_TRUE(k.Operations().empty() && !k.Pulls());
  }
}

TEST(KeyboardOnTheSketch, PointsAtTheTrack) {
  Keyboard k;
  const std::tuple<Key, int, double> moves[] = {{Key::End, 1, 20},
                                                {Key::Right, 1, 20},
                                                {Key::Home, 1, 0},
                                                {Key::Down, 1, 0},
                                                {Key::Up, 60, 6}};
  for (const auto& [key, times, x] : moves) {
    k.Type(key, times);
    EXPECT_NEAR(k.eikona.KeyPointer.Get()->x, x, 1e-12) << static_cast<int>(key);
  }
  EXPECT_EQ(k.said, "x = 6.0, y = 2.0");
  k.window->platosvalue.UserScroll(30);
  EXPECT_NEAR(k.eikona.KeyPointer.Get()->y, 3, 1e-12);
  k.Pull(-3, 2);
  EXPECT_EQ(k.said, "Force x = -0.75, y = 0.50");
  k.Pull(-400, 400);
  EXPECT_EQ(k.said, "Force x = -46.00, y = 37.00");
}

// The nearest force that the keys can pull needs no other that would be long enough to be drawn.
TEST(KeyboardOnTheSketch, FindsAForceThatNeedsNoOther) {
  Keyboard k;
  k.Type(Key::Home);
  for (int tenth = 1; tenth < 200; ++tenth) {
    k.Type(Key::Right);
    k.ArriveAt(tenth / 10.0);
    const Vector force = Vector(k.A * k.at / 4 + 3.5, k.an) * k.tangent;
    k.Pull(static_cast<int>(std::lround(force.real() / 0.25)),
           static_cast<int>(std::lround(force.imag() / 0.25)));
    k.Forget();
    k.Type(Key::ShiftReleased);
    const Marks arrows = k.Arrows();
    const auto legend = [](const Mark& arrow) { return arrow.place.real() == 0.2; };
    EXPECT_EQ(arrows.size(), 1U + std::ranges::count_if(arrows, legend)) << k.x;
    const bool right = k.Said().find("FORCE: HAS THE CORRECT") != std::string::npos;
    EXPECT_EQ(right, k.an != 0) << k.x;
    EXPECT_EQ(k.Said().find("INCORRECT"), std::string::npos) << k.x;
  }
}

}  // namespace
