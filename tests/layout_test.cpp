#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "harness.h"

namespace {

struct Row {
  const char* name;
  std::vector<double> place;  // left, top, width, height
};

// The controls in tab order on a screen H twips high: W is the sketch's width, B its bottom, f and
// a the left sides of the frequency's and the amplitude's scroll bar.
std::vector<Row> LayoutFor(double H) {
  const double W = 0.75 * H, B = 240 + W, f = 720 + W / 2, a = f + 975 + 1.5 * 1215;
  return {{"eikona", {720, 240, W, W}},
          {"Text1", {720 + W, 240, 3375, 6975}},
          {"Option1", {240, B, 1815, 495}},
          {"Option2", {240, B + 495, 2655, 495}},
          {"Option3", {240, B + 990, 2655, 495}},
          {"platosvalue", {a, B, 375, 1462.5}},
          {"Label1", {a + 375, B, 1215, 735}},
          {"syxnotikamp", {f, B, 975, 375}},
          {"Label2", {f + 975, B, 1215, 255}},
          {"epitaxyno", {f, B + 375, 975, 375}},
          {"Label3", {f + 975, B + 375, 1575, 375}},
          {"arxikives", {a + 1590, B, 375, 1462.5}},
          {"Label4", {a + 1965, B, 1935, 495}},
          {"Command1", {720, B, 1095, 375}},
          {"VIMA", {1815, B, 975, 375}},
          {"vimatimi", {2790, B, 1335, 375}},
          {"Label5", {2790, B + 375, 735, 375}}};
}

// The second height leaves fractions of a twip. Option1 arranges again what has been moved.
TEST(Layout, FollowsTheScreensHeightAndComesBack) {
  for (const int height : {768, 1023}) {
    Program p(1280, height);
    const float H = 15.0F * static_cast<float>(height);
    app::firststep& w = *p.window;
    for (const auto& [value, step] : {std::pair{50, "0.02"}, {10, "0.10"}, {300, "0.00"}}) {
      const auto rows = LayoutFor(double{H});
      EXPECT_TRUE(w.Left == 0 && w.Top == 0 && w.Width == 19200 && w.Height == H);
      ASSERT_EQ(w.controls.size(), rows.size());
      for (std::size_t i = 0; i < rows.size(); ++i) {
        const toolkit::Control& c = *w.controls[i];
        EXPECT_EQ(c.Name, rows[i].name);
        const std::vector<double> place = {c.Left, c.Top, c.Width, c.Height};
        EXPECT_EQ(place, rows[i].place) << c.Name;
        if (c.Left != 720 && c.Left != 240) w.controls[i]->Left = 7;
        if (c.Top != 240) w.controls[i]->Top = 9;
      }
      EXPECT_TRUE(w.Visible && w.eikona.AutoRedraw && w.eikona.ScaleWidth() == 20);
      EXPECT_TRUE(w.eikona.DrawWidth == 1 && w.Timer1.Interval == 1 && w.Text1.FontSize == 12);
      EXPECT_EQ(w.Option1.FontName.Get() + ": " + w.Option1.Caption.Get(),
                "times new roman: Eξήγηση για τριβή");
      EXPECT_EQ(w.Text1.Text.Get(),
                "We examine the effect of the shape of the curve and of the speed on the "
                "centripetal acceleration");
      w.Left = w.Height = w.eikona.Height = w.arxikives.Width = w.Label1.Width = 33;
      w.eikona.Scale(1, 2, 3, 4);
      w.eikona.DrawWidth = w.Timer1.Interval = 3;
      w.Text1.FontSize = 8;
      w.vimatimi.Value = value;
      w.Option1.UserClick();
      EXPECT_EQ(w.Label5.Caption.Get(), std::string("Δt = ") + step);
    }
  }
}

// The window as it is designed, before any handler has run.
TEST(Design, ShowsSketchAndTextAlone) {
  toolkit::headless::HeadlessDesktop desktop(1366, 768);
  window::Controls w(desktop);
  for (const auto* c : w.controls) EXPECT_EQ(c->Visible, c == &w.eikona || c == &w.Text1);
  EXPECT_TRUE(w.Option1.Value && !w.Option2.Value && !w.Option3.Value && !w.Visible);
  EXPECT_TRUE(w.Timer1.Enabled && w.Timer1.Interval == 1);
  std::string bars;
  for (const auto* b : {&w.platosvalue, &w.syxnotikamp, &w.epitaxyno, &w.arxikives, &w.vimatimi}) {
    for (const int n : {+b->Min, +b->Max, +b->Value, +b->LargeChange, +b->SmallChange}) {
      bars += std::to_string(n) + ' ';
    }
  }
  EXPECT_EQ(bars, "1 35 20 5 1 1 60 15 2 1 -35 35 20 1 1 0 15 3 2 1 10 300 50 10 1 ");
}

}  // namespace
