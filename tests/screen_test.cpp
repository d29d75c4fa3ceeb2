#include <gtest/gtest.h>

#include "harness.h"
#include "toolkit/lengths.h"

namespace {

using toolkit::Size;

constexpr double kTitle = 30;
constexpr double kSides[] = {480, 600, 676, 768, 1024, 1080, 1366, 1440, 1920, 2160, 3840};

toolkit::Room NeededRoom() {
  static const Program program;
  return program.window->Surroundings;
}

toolkit::View ViewOf(double width, double height) {
  return toolkit::ViewOf({width, height}, kTitle, NeededRoom());
}

TEST(Screen, ZoomFollowsTheHeight) {
  const struct {
    double width, height, zoom;
  } screens[] = {
      {1366, 768, 1},      {1600, 900, 1},        {1920, 1080, 1},      {2560, 1440, 1.333333},
      {3840, 2160, 2},     {1280, 676, 1},        {1080, 1920, 1},      {768, 1024, 1},
      {553.5, 1000, 0.75}, {1024, 600, 0.863309}, {640, 480, 0.647482}, {800, 384, 0.5},
      {0, -5, 0.5}};
  for (const auto& [width, height, zoom] : screens) {
    EXPECT_NEAR(ViewOf(width, height).zoom, zoom, 1e-6) << width << ' ' << height;
  }
}

// On screens of all shapes the window as it is laid out fits under its title and its menu; the zoom
// that is found for it there later is the same, for one that is a little larger nearly so, and fits
// it into every other screen.
TEST(Screen, HoldsTheWholeWindow) {
  for (const double width : kSides) {
    for (const double height : kSides) {
      SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
      const toolkit::View view = ViewOf(width, height);
      const auto& [chosen, screen, part] = view;
      Program p(static_cast<int>(screen.width), static_cast<int>(screen.height));
      const Size needed = toolkit::Extents(p.window->controls);
      const auto zoomAt = [&](double freeWidth, double freeHeight) {
        return toolkit::ZoomFor({freeWidth, freeHeight}, kTitle, needed, view);
      };
      const auto fits = [&](double zoom, double freeWidth, double freeHeight) {
        const double under = (needed.height + toolkit::kMenuHeight) * zoom + kTitle;
        const bool whole = needed.width * zoom < freeWidth + 1e-9 && under < freeHeight + 1e-9;
        return whole || zoom == toolkit::kLeastZoom;
      };
      EXPECT_TRUE(fits(chosen, width, height));
      const bool all = screen.height * chosen == height;  // is told of it
      EXPECT_EQ(zoomAt(width, height), chosen);
      EXPECT_TRUE(!all || std::abs(zoomAt(width + 1e-9, height) - chosen) < 1e-3);
      for (const double side : kSides) {
        EXPECT_TRUE(fits(zoomAt(side, 900), side, 900));
        EXPECT_LE(zoomAt(side, 900), std::max(900 / screen.height, toolkit::kLeastZoom));
      }
      EXPECT_EQ(zoomAt(1, 1), toolkit::kLeastZoom);
    }
  }
}

// Letters of 8.25 points are 11 of the program's pixels high; and the text box beside the picture
// ends above the row of scroll bars.
TEST(Screen, APageIsLargeEnoughToBeRead) {
  for (double side = 1; side < 1000; side += 9) {
    for (const Size seen : {Size{1366, side}, Size{side, 1366}}) {
      SCOPED_TRACE(std::to_string(seen.width) + " x " + std::to_string(seen.height));
      const Size page = toolkit::PageFor(seen, NeededRoom());
      EXPECT_GE(page.width, seen.width);
      EXPECT_GE(page.height, seen.height);
      EXPECT_EQ(page == seen, seen.width >= 517 && seen.height >= 434);
      const toolkit::View view = toolkit::ViewOf(page, 0.0, NeededRoom());
      EXPECT_GE(11.0 * view.zoom, 7.6);
      const Program p(1366, static_cast<int>(std::ceil(view.screen.height)));
      EXPECT_LE(p.window->Text1.Bottom(), p.window->platosvalue.Top);
    }
  }
}

// Boxes that touch in twips touch in pixels, at any zoom.
TEST(Screen, RoundsEdgesNotSizes) {
  Program p;
  toolkit::Control &left = p.window->Label1, &right = p.window->Label2;
  for (int i = 0; i < 2000; ++i) {
    const toolkit::TwipScale scale(0.5 + i / 999.0);
    left.Left = 7.7F * static_cast<float>(i);
    left.Width = 400 + 0.37F * static_cast<float>(i);
    right.Left = left.Right();
    const auto a = scale.PixelsOf(left), b = scale.PixelsOf(right);
    ASSERT_EQ(a.left + a.width, b.left) << i;
    ASSERT_NEAR(b.left, right.Left / 15.0 * scale.Zoom(), 0.5);
    const auto canvas = scale.CanvasOf(left);
    ASSERT_EQ(canvas, (toolkit::PixelBox{a.left + 1, a.top + 1, a.width - 2, a.height - 2}));
  }
  left.Width = 9;
  EXPECT_EQ(toolkit::TwipScale(1).CanvasOf(left).width, 1);
  EXPECT_EQ(toolkit::TwipScale(2).PixelsOf(-1e30F), -100'000);
}

TEST(Screen, LettersAreNeverRoundedUpWhereTheyShrink) {
  const struct {
    double scale;
    float points;
    int pixels;
  } fonts[] = {{1, 8.25F, 11},  {1.5, 8.25F, 17}, {2, 8.25F, 22}, {0.99, 8.25F, 10},
               {0.5, 8.25F, 5}, {0.99, 12, 15},   {1.03, 12, 16}, {1.04, 12, 17},
               {1, 0, 1},       {2, 1e9F, 10'000}};
  for (const auto& [scale, points, pixels] : fonts) {
    EXPECT_EQ(toolkit::FontPixels(points, scale), pixels) << points << ' ' << scale;
  }
}

}  // namespace
