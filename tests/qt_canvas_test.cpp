#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "toolkit/qt/canvas.h"

namespace {

using toolkit::Colour;
using toolkit::kWhite;
using toolkit::Point;
using toolkit::qt::QtCanvas;

constexpr Colour kRed{255, 0, 0};
constexpr Colour kInk{1, 0, 66};
constexpr double kRatios[] = {1.0, 1.25, 1.5, 2.0, 3.0};

struct Sheet : QtCanvas {
  explicit Sheet(int side, double ratio = 1.0) : QtCanvas(nullptr) {
    Resize(QSize(side, side), ratio);
  }
  QColor At(double x, double y) { return Look().pixelColor(qRound(x), qRound(y)); }
  // The places of all pixels that are no longer white.
  std::vector<Point> Touched() {
    std::vector<Point> touched;
    for (int y = 0; y < Look().height(); ++y) {
      const auto* row = reinterpret_cast<const QRgb*>(Look().constScanLine(y));
      for (int x = 0; x < Look().width(); ++x) {
        if (row[x] != 0xffffffffU) touched.push_back({1.0 * x, 1.0 * y});
      }
    }
    return touched;
  }
};

TEST(QtCanvas, DotsAreCrispSquaresUpToTheCorners) {
  for (const double ratio : kRatios) {
    for (const int width : {1, 2, 3}) {
      Sheet sheet(40, ratio);
      const int side = qRound(width * ratio);
      const double last = sheet.Size().width - 1;
      const auto dots = [&](const std::vector<Point>& places) {
        sheet.Dots(places, {kRed, width});
      };
      dots({{20.3, 19.8}});
      const auto touched = sheet.Touched();
      ASSERT_EQ(touched.size(), side * side) << ratio << ' ' << width;
      EXPECT_NEAR((touched.front().x + touched.back().x) / 2, 20.3, 0.5);
      EXPECT_NEAR((touched.front().y + touched.back().y) / 2, 19.8, 0.5);
      for (const Point& place : touched) EXPECT_EQ(sheet.At(place.x, place.y), Qt::red);
      dots({{0, 0}, {last, 0}, {0, last}, {last, last}});
      for (const double x : {0.0, last}) {
        for (const double y : {0.0, last}) EXPECT_EQ(sheet.At(x, y), Qt::red);
      }
      sheet.Clear(kWhite);
      dots({{-1e300, 5}, {5, -2.0 * side}, {last + 2.0 * side, 5}, {5, 1e300}});
      EXPECT_TRUE(sheet.Touched().empty());
    }
  }
}

TEST(QtCanvas, WhiteLineLeavesNothingOfAThinnerOne) {
  for (const double ratio : kRatios) {
    Sheet sheet(70, ratio);
    std::size_t seen = 0;
    for (int i = 0; i < 500; ++i) {
      const double angle = i * std::numbers::pi / 32 + (i % 5) * 1e-3;
      const double length = ratio * (i % 7 == 0 ? 0.2 : 3.1) * (i % 11);
      const Point from{35 * ratio + 0.17 * (i % 6), 35 * ratio + 0.23 * (i % 5)};
      const Point to{from.x + length * std::cos(angle), from.y + length * std::sin(angle)};
      const int width = 1 + i % 2;
      sheet.Line(from, to, {kRed, width});
      seen += sheet.Touched().size();
      sheet.Line(from, to, {kWhite, width + 1});
      ASSERT_TRUE(sheet.Touched().empty()) << ratio << ' ' << angle << ' ' << length;
    }
    EXPECT_GT(seen, 4000U);
  }
}

TEST(QtCanvas, NumbersOfAnySizeShowWhatCrossesThePicture) {
  Sheet sheet(200);
  sheet.Line({-1e300, -1e300}, {40, 40}, {kRed, 1});
  sheet.Line({40, 40}, {1.7e308, 1.7e308}, {kRed, 1});
  EXPECT_EQ(sheet.At(150, 150), Qt::red);
  sheet.Line({1e12, 100}, {-1e12, 100}, {kInk, 3});
  EXPECT_EQ(sheet.At(30, 100), QColor(1, 0, 66));
  for (const Point& place : sheet.Touched()) {
    EXPECT_TRUE(std::abs(place.x - place.y) < 3 || std::abs(place.y - 100) < 2);
  }
  for (const double radius : {0.0, 1e-300, 1e-3, 0.4, 1.7e308}) {
    for (const bool dotted : {false, true}) {
      sheet.Clear(kWhite);
      sheet.Circle({{50, 60}, {0.0, 1.0}, radius}, {kRed, 1, dotted});
      for (const Point& place : sheet.Touched()) {
        EXPECT_LE(std::abs(place.y - 60), 2);
        EXPECT_TRUE(radius > 1.0 || std::abs(place.x - 50) < 3);
      }
    }
  }
}

TEST(QtCanvas, CirclesOfAnyRadiusLieWhereTheyShould) {
  for (const double radius : {30.0, 100.0, 300.0, 1e3, 1e4, 1e5, 1e7, 1e9, 1e12, 1e15, 1e17}) {
    for (const double angle : {0.0, 0.4, 2.5}) {
      for (const double ratio : {1.0, 2.0, -1.0, -2.0}) {
        const bool dotted = ratio < 0;
        const double scale = std::abs(ratio);
        Sheet sheet(800, scale);
        const Point touch{400.3 * scale, 390.6 * scale};
        sheet.Circle({touch, {std::cos(angle), std::sin(angle)}, radius}, {{0, 0, 0}, 1, dotted});
        // Independent of how it is drawn: the distance from the centre in the longer mantissa.
        using Long = long double;
        const Long x = Long(touch.x) + Long(radius) * std::cos(Long(angle));
        const Long y = Long(touch.y) + Long(radius) * std::sin(Long(angle));
        double ink = 0.0;
        double off = 0.0;
        for (const Point& place : sheet.Touched()) {
          const auto gap =
              static_cast<double>(std::hypot(Long(place.x) - x, Long(place.y) - y) - Long(radius));
          ASSERT_LT(std::abs(gap), (dotted ? 0.75 : 0.5) * scale + 0.55) << radius << ' ' << angle;
          const double part = 1.0 - sheet.At(place.x, place.y).red() / 255.0;
          ink += part;
          off += part * gap;
        }
        // A solid line has as much ink as it is long and wide; both have it evenly on both sides.
        const double length = radius > 100 ? 700 * scale : 2 * std::numbers::pi * radius;
        EXPECT_GT(ink, (dotted ? 0.35 : 0.9) * length * scale) << radius << ' ' << angle;
        EXPECT_LT(std::abs(off / ink), dotted ? 0.1 : 0.02) << radius << ' ' << angle;
      }
    }
  }
}

TEST(QtCanvas, TextStaysTheSameHoweverOftenItIsPrinted) {
  const std::string text = "β = 0.26 Ταχύτης";
  for (const double ratio : kRatios) {
    Sheet sheet(120, ratio);
    sheet.Text({5.2, 20.4}, text, kInk);
    const QImage once = sheet.Look().copy();
    EXPECT_GT(sheet.Touched().size(), 150 * ratio);
    for (int i = 0; i < 1000; ++i) sheet.Text({5.2, 20.4}, text, kInk);
    EXPECT_EQ(sheet.Look(), once);
    sheet.Line({0, 20}, {60, 35}, {kWhite, 3});
    EXPECT_NE(sheet.Look(), once);
    sheet.Text({5.2, 20.4}, text, kInk);
    EXPECT_EQ(sheet.Look(), once);
    // Cut at every edge, or wholly outside.
    for (const double x : {-1e300, -20.0, 110 * ratio, 1e9}) {
      for (const double y : {-1e9, -5.0, 115 * ratio, 1e300}) sheet.Text({x, y}, text, kInk);
    }
    // Letters, not the boxes that stand for missing ones.
    Sheet other(120, ratio);
    other.Text({5.2, 20.4}, "γ = 0.26 Ταχύτης", kInk);
    EXPECT_NE(other.Look(), once);
  }
}

TEST(QtCanvas, PictureOutlivesTheMoveToAnotherScreenButNotAnotherSize) {
  int reports = 0;
  QtCanvas canvas([&] { ++reports; });
  canvas.Resize(QSize(60, 60), 1.0);
  canvas.Look();
  reports = 0;
  for (const double y : {30.0, 31.0}) canvas.Line({10, y}, {50, y}, {kRed, 3});
  EXPECT_EQ(reports, 1);
  canvas.Resize(QSize(60, 60), 2.0);
  EXPECT_EQ(canvas.Size().width, 120);
  EXPECT_EQ(canvas.Look().pixelColor(60, 61), Qt::red);
  canvas.Line({20, 90.5}, {100, 90.5}, {kInk, 1});
  EXPECT_EQ(reports, 2);
  for (const int y : {90, 91}) EXPECT_EQ(canvas.Look().pixelColor(60, y), QColor(1, 0, 66));
  for (const int y : {89, 92}) EXPECT_EQ(canvas.Look().pixelColor(60, y), Qt::white);
  canvas.Resize(QSize(61, 60), 2.0);
  EXPECT_EQ(canvas.Look().pixelColor(60, 61), Qt::white);
}

}  // namespace
