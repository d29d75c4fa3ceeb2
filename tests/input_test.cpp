#include <gtest/gtest.h>

#include <cmath>

#include "harness.h"
#include "toolkit/mnemonic.h"

namespace {

using toolkit::Key, toolkit::KeyCode;

constexpr int kKeys = static_cast<int>(KeyCode::Other) + 1;

// From 50 in the range 10 to 300, large change 10.
TEST(ScrollBar, KeysMoveIt) {
  const std::map<KeyCode, int> moved = {
      {KeyCode::Left, 49},   {KeyCode::Up, 49},       {KeyCode::Right, 51}, {KeyCode::Down, 51},
      {KeyCode::PageUp, 40}, {KeyCode::PageDown, 60}, {KeyCode::Home, 10},  {KeyCode::End, 300}};
  Program p;
  toolkit::ScrollBar& bar = p.window->vimatimi;
  for (int i = 0; i < kKeys; ++i) {
    const auto to = moved.find(static_cast<KeyCode>(i));
    bar.UserScroll(50);
    EXPECT_EQ(bar.UserKey(static_cast<KeyCode>(i)), to != moved.end());
    EXPECT_EQ(bar.Value, to != moved.end() ? to->second : 50) << i;
  }
}

// Of one pixel for each value, from 10 to 300: 14 of an arrow, 290 to go, 12 of the thumb, 14
// again.
TEST(ScrollBar, APointerMovesIt) {
  constexpr double kLength = 14 + 290 + 12 + 14;
  constexpr double kThumb = 14 + 50 - 10;  // where it begins at a value of 50
  const struct {
    const char* part;
    double place;
    std::vector<int> values;  // one after the other while it is held
  } presses[] = {{"arrow", 13.9, {49, 48, 47}},
                 {"arrow at the other end", kLength - 14, {51, 52, 53}},
                 {"before the thumb", 14, {40, 30, 20, 10}},
                 {"just before the thumb", kThumb - 0.1, {40}},
                 {"just behind the thumb", kThumb + 12, {60}},
                 {"behind the thumb", kThumb + 12 + 20, {60, 70, 80}},
                 {"thumb", kThumb, {}},
                 {"end of the thumb", kThumb + 11.9, {}},
                 {"nowhere", NAN, {}}};
  Program p;
  toolkit::ScrollBar& bar = p.window->vimatimi;
  for (const auto& [part, place, values] : presses) {
    for (const double pixel : {0.5, 1.0, 2.0}) {
      SCOPED_TRACE(testing::Message() << part << ' ' << pixel);
      bar.UserScroll(50);
      bool goesOn = bar.Pointer.Press(place * pixel, kLength * pixel, pixel);
      for (const int value : values) {
        EXPECT_TRUE(goesOn);
        EXPECT_EQ(bar.Value, value);
        goesOn = bar.Pointer.Again();
      }
      EXPECT_EQ(goesOn, values.size() == 3 && std::string(part).starts_with("arrow"));
      bar.UserScroll(50);
      const bool gripped = values.empty() && place == place;
      for (const auto& [by, value] : {std::pair(7.4, 57), {-999.0, 10}, {1e300, 300}, {NAN, 300}}) {
        bar.Pointer.Drag((place + by) * pixel);
        EXPECT_EQ(bar.Value, gripped ? value : 50);
      }
    }
  }
  bar.UserScroll(50);
  bar.Pointer.Press(10, 20, 1);  // too short a bar for its thumb
  bar.Pointer.Drag(15);
  EXPECT_EQ(bar.Value, 49);
}

// Notch after notch; what is left of one is kept. The axis that is turned further counts.
TEST(ScrollBar, TheWheelMovesItByNotches) {
  const double turns[][3] = {{0, 120, 49},   {0, -120, 50},     {0, -60, 50},       {0, -60, 51},
                             {0, -50, 51},   {0, -50, 51},      {0, -50, 52},       {0, 30, 52},
                             {0, 119, 52},   {0, 1, 51},        {240, 0, 49},       {-120, 119, 50},
                             {30, -120, 51}, {0, -600, 56},     {0, NAN, 56},       {0, -119.5, 56},
                             {0, -0.5, 57},  {0, HUGE_VAL, 10}, {0, -HUGE_VAL, 300}};
  Program p;
  for (const auto& [x, y, value] : turns) {
    p.window->vimatimi.UserWheel(x, y);
    EXPECT_EQ(p.window->vimatimi.Value, value) << x << ' ' << y;
  }
}

// The way round leads past what does not show.
TEST(OptionButtons, ArrowKeysGoRoundThoseThatShow) {
  Program p;
  app::firststep& w = *p.window;
  const auto expect = [&](toolkit::OptionButton& focused, KeyCode key, const char* next) {
    const toolkit::OptionButton* now = w.options.UserKey(focused, {key});
    EXPECT_TRUE(now->Name == next && now->Value) << now->Name << " instead of " << next;
  };
  expect(w.Option3, KeyCode::Down, "Option3");  // none shows
  w.campyles.UserClick();
  for (const KeyCode key : {KeyCode::Left, KeyCode::Up, KeyCode::Right, KeyCode::Down}) {
    expect(w.Option3, key, "Option2");
    expect(w.Option2, key, "Option3");
  }
  w.Option1.Visible = true;
  expect(w.Option1, KeyCode::Right, "Option2");
  expect(w.Option1, KeyCode::Left, "Option3");
}

TEST(Buttons, EnterAndSpaceClickOnce) {
  Program p;
  app::firststep& w = *p.window;
  int clicks = 0;
  w.VIMA.Click = w.Option2.Click = [&] { ++clicks; };
  for (int i = static_cast<int>(KeyCode::PageUp); i < 2 * kKeys; ++i) {
    const toolkit::KeyEvent key{static_cast<KeyCode>(i % kKeys), 0, i >= kKeys};
    if (toolkit::StepOf(key.code) != 0) continue;
    const bool click = i < kKeys && (key.code == KeyCode::Enter || key.code == KeyCode::Space);
    EXPECT_EQ(w.VIMA.UserKey(key), click);
    EXPECT_EQ(w.options.UserKey(w.Option2, key), click ? &w.Option2 : nullptr) << i;
  }
  EXPECT_EQ(clicks, 4);
}

// "CASES" and "CONTINUE" begin alike; in the menu of options nothing is left for the last.
TEST(Menus, EachHasALetterOfItsOwn) {
  Program p;
  using Places = std::vector<std::optional<std::size_t>>;
  EXPECT_EQ(toolkit::Mnemonics(p.window->menus), (Places{0, 0, 0, 0, 1, 0}));
  toolkit::MenuItem& back = p.window->XANAPISO;
  toolkit::MenuItem greek(*p.window, "", "Αρχή [B]ac");
  EXPECT_EQ(toolkit::Mnemonics({&back, &greek, &back, &greek, &back, &back}),
            (Places{0, 12, 2, {}, 3, {}}));
  toolkit::MenuItem high(*p.window, "", "AZ"), low(*p.window, "", "azb");
  EXPECT_EQ(toolkit::Mnemonics({&high, &high, &low}), (Places{0, 1, 2}));
}

// What the picture hears of the keys.
struct Listener : Program {
  using Heard = std::vector<std::pair<Key, int>>;
  sketch::Sketch& picture = window->eikona;
  Heard heard;

  Listener() {
    picture.KeyDown = [this](Key key, short shift) { heard.emplace_back(key, shift); };
  }
  void Expect(const Heard& want) { EXPECT_EQ(std::exchange(heard, {}), want); }
};

TEST(PictureKeys, EachDoesOneThing) {
  const std::map<KeyCode, Key> meanings = {
      {KeyCode::Left, Key::Left},  {KeyCode::Right, Key::Right}, {KeyCode::Up, Key::Up},
      {KeyCode::Down, Key::Down},  {KeyCode::Home, Key::Home},   {KeyCode::End, Key::End},
      {KeyCode::Enter, Key::Pick}, {KeyCode::Space, Key::Pick},  {KeyCode::Escape, Key::Cancel}};
  Listener l;
  for (int i = 0; i < 2 * kKeys; ++i) {
    const toolkit::KeyEvent key{static_cast<KeyCode>(i % kKeys), 5, i >= kKeys};
    const auto meaning = meanings.find(key.code);
    const bool known = meaning != meanings.end();
    EXPECT_EQ(l.picture.UserKeyDown(key), known) << i;
    const bool heard = known && !(meaning->second == Key::Pick && key.repeated);
    l.Expect(heard ? Listener::Heard{{meaning->second, 5}} : Listener::Heard());
    EXPECT_EQ(l.picture.UserKeyUp(key), key.code == KeyCode::Shift && !key.repeated) << i;
    l.heard.clear();
  }
}

// Of the two SHIFT keys the last that is let go counts, also one that was pressed elsewhere.
TEST(PictureKeys, ShiftIsLetGoOnce) {
  const struct {
    bool down, repeated, heard;
  } keys[] = {{true, false, false},  {true, true, false},  {false, true, false},
              {false, false, true},  {true, false, false}, {true, false, false},
              {false, false, false}, {false, false, true}, {false, false, true}};
  Listener l;
  for (int again = 0; again < 2; ++again) {
    for (const auto& [down, repeated, heard] : keys) {
      const toolkit::KeyEvent key{KeyCode::Shift, toolkit::kCtrlMask, repeated};
      down ? l.picture.UserKeyDown(key) : l.picture.UserKeyUp(key);
      l.Expect(heard ? Listener::Heard{{Key::ShiftReleased, toolkit::kCtrlMask}}
                     : Listener::Heard());
    }
    // One that was let go unheard is missed by the next key.
    l.picture.UserKeyDown({KeyCode::Shift});
    l.picture.UserKeyDown({KeyCode::Left, toolkit::kShiftMask});
    l.picture.UserKeyDown({KeyCode::Left});
    l.Expect({{Key::Left, toolkit::kShiftMask}, {Key::ShiftReleased, 0}, {Key::Left, 0}});
    l.picture.UserKeyDown({KeyCode::Shift});
    l.picture.UserFocusLost();
    l.Expect({{Key::Cancel, 0}});
  }
}

}  // namespace
