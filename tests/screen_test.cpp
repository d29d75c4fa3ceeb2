#include <gtest/gtest.h>

#include "harness.h"
#include "toolkit/lengths.h"

namespace {

constexpr double kTitle = 30;

toolkit::View ViewOf(double width, double height) {
  static const Program program;
  return toolkit::ViewOf({width, height}, kTitle, program.window->Surroundings);
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

// On screens of all shapes the window as it is laid out fits under its title and its menu; and the
// zoom that is found for it there later is the same, and fits it into every other screen.
TEST(Screen, HoldsTheWholeWindow) {
  constexpr double kSides[] = {480, 600, 676, 768, 1024, 1080, 1366, 1440, 1920, 2160, 3840};
  for (const double width : kSides) {
    for (const double height : kSides) {
      SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
      const auto [chosen, screen] = ViewOf(width, height);
      Program p(static_cast<int>(screen.width), static_cast<int>(screen.height));
      const toolkit::Size needed = toolkit::Extents(p.window->controls);
      const auto zoomAt = [&, laid = screen.height](double freeWidth, double freeHeight) {
        return toolkit::ZoomFor({freeWidth, freeHeight}, kTitle, needed, laid);
      };
      const auto fits = [&](double zoom, double freeWidth, double freeHeight) {
        const double under = (needed.height + toolkit::kMenuHeight) * zoom + kTitle;
        const bool whole = needed.width * zoom < freeWidth + 1e-9 && under < freeHeight + 1e-9;
        return whole || zoom == toolkit::kLeastZoom;
      };
      EXPECT_TRUE(fits(chosen, width, height));
      const bool all = screen.height * chosen == height;  // is told of it
      EXPECT_TRUE(!all || std::abs(zoomAt(width, height) - chosen) < 1e-3);
      for (const double side : kSides) {
        EXPECT_TRUE(fits(zoomAt(side, 900), side, 900));
        EXPECT_LE(zoomAt(side, 900), std::max(900 / screen.height, toolkit::kLeastZoom));
      }
      EXPECT_EQ(zoomAt(1, 1), toolkit::kLeastZoom);
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
