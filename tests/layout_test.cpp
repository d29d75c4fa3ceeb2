#include <gtest/gtest.h>

#include <array>

#include "harness.h"

namespace {

// Left, top, width and height of the controls in tab order (sketch, text, options, the scroll bars
// with their labels, start, step, time step) on a screen H twips high: W is the sketch's width, B
// its bottom, f and a the left sides of the frequency's and the amplitude's scroll bar.
using Place = std::array<double, 4>;
std::vector<Place> LayoutFor(double H) {
  const double W = 0.75 * H, B = 240 + W, f = 720 + W / 2, a = f + 975 + 1.5 * 1215;
  const auto at = [](double x, double y, double w, double h) { return Place{x, y, w, h}; };
  const auto rows = [](auto... places) { return std::vector<Place>{places...}; };
  return rows(at(720, 240, W, W), at(720 + W, 240, 3375, 6975), at(240, B, 1815, 495),
              at(240, B + 495, 2655, 495), at(240, B + 990, 2655, 495), at(a, B, 375, 1462.5),
              at(a + 375, B, 1215, 735), at(f, B, 975, 375), at(f + 975, B, 1215, 255),
              at(f, B + 375, 975, 375), at(f + 975, B + 375, 1575, 375),
              at(a + 1590, B, 375, 1462.5), at(a + 1965, B, 1935, 495), at(720, B, 1095, 375),
              at(1815, B, 975, 375), at(2790, B, 1335, 375), at(2790, B + 375, 735, 375));
}

// The second height leaves fractions of a twip.
TEST(Layout, FollowsTheScreensHeight) {
  for (const int height : {768, 1023}) {
    Program p(1280, height);
    app::firststep& w = *p.window;
    const auto rows = LayoutFor(15.0 * height);
    const auto expectRows = [&] {
      for (std::size_t i = 0; i < w.controls.size(); ++i) {
        const toolkit::Control& c = *w.controls[i];
        EXPECT_EQ((Place{c.Left, c.Top, c.Width, c.Height}), rows.at(i)) << c.Name;
      }
    };
    expectRows();
    EXPECT_TRUE(w.Left == 0 && w.Top == 0 && w.Width == 19200 &&
                w.Height == w.desktop.ScreenHeight());
    EXPECT_TRUE(w.Visible && w.eikona.AutoRedraw && w.Text1.FontSize == 12);
    EXPECT_EQ(w.Option1.Caption.Get(), "Eξήγηση για τριβή");
    EXPECT_TRUE(w.Text1.Text.Get().starts_with("We examine the effect of the shape"));
    w.Option2.UserClick();
    p.Scroll({20, 15, 20, 3, 60});
    expectRows();
  }
}

}  // namespace
