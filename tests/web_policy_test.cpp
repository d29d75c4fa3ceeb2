// What the toolkit decides for a page in a browser.
#include <gtest/gtest.h>

#include "harness.h"

namespace {

using toolkit::Room;
using toolkit::Size;

constexpr Room kRoom{
    .share = 0.75, .beside = 273.0, .under = 115.0, .narrowest = 738.0, .lowest = 465.0};

// Letters of 8.25 points are 11 of the program's pixels high.
TEST(PageFor, IsNeverSoSmallThatLettersAreIllegible) {
  for (const Size seen : {Size{390, 844}, Size{844, 390}, Size{320, 200}, Size{1, 1}}) {
    const Size page = toolkit::PageFor(seen, kRoom);
    EXPECT_GE(page.width, seen.width);
    EXPECT_GE(page.height, seen.height);
    EXPECT_GE(11.0 * toolkit::ViewOf(page, 0.0, kRoom).zoom, 7.6)
        << seen.width << " x " << seen.height;
  }
}

// The text box beside the picture ends above the row of scroll bars.
TEST(PageFor, KeepsTheExplanationOffTheRows) {
  for (double side = 100; side < 1000; side += 10) {
    for (const Size seen : {Size{1366, side}, Size{side, 1366}}) {
      const toolkit::View view = toolkit::ViewOf(toolkit::PageFor(seen, kRoom), 0.0, kRoom);
      const Program p(1366, static_cast<int>(std::ceil(view.screen.height)));
      EXPECT_LE(p.window->Text1.Bottom(), p.window->platosvalue.Top)
          << seen.width << " x " << seen.height;
    }
  }
}

TEST(PageFor, IsWhatIsSeenWhereThatIsEnough) {
  for (const Size seen : {Size{640, 480}, Size{844, 434}, Size{768, 1024}, Size{3840, 2160}}) {
    const Size page = toolkit::PageFor(seen, kRoom);
    EXPECT_EQ(page.width, seen.width);
    EXPECT_EQ(page.height, seen.height);
  }
}

TEST(PictureBox, APointerTakenAwayReleasesNothing) {
  Program program;
  program.window->GUESSFORCE.UserClick();
  auto& sketch = program.window->eikona;
  const toolkit::Point onTrack = sketch.ToPixels()(0.0, 0.0);
  sketch.UserMouseDown({1, toolkit::kShiftMask, onTrack});
  ASSERT_EQ(sketch.CursorAt(onTrack), toolkit::Cursor::ClosedHand);
  const std::string told = program.window->Text1.Text;
  program.Forget();

  sketch.UserMouseCancel();

  EXPECT_NE(sketch.CursorAt(onTrack), toolkit::Cursor::ClosedHand);
  EXPECT_TRUE(program.Operations().empty());
  EXPECT_EQ(program.window->Text1.Text.Get(), told);
}

}  // namespace
