#include <QApplication>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "toolkit/qt/canvas.h"

namespace {

using toolkit::kWhite, toolkit::Point;
constexpr toolkit::Colour kRed{255, 0, 0}, kInk{1, 0, 66};
constexpr double kRatios[] = {1.0, 1.25, 1.5, 2.0, 3.0};

struct QtCanvas : testing::Test {
  int none = 0;
  QApplication application{none, nullptr};
};

struct Sheet : toolkit::qt::QtCanvas {
  Sheet(int side, double ratio) : toolkit::qt::QtCanvas(nullptr) { Resize({side, side}, ratio); }
};

TEST_F(QtCanvas, DotsAreCrispSquaresUpToTheCorners) {
  for (int i = 0; i < 15; ++i) {
    const int width = 1 + i / 5, side = qRound(width * kRatios[i % 5]);
    Sheet sheet(40, kRatios[i % 5]);
    QImage want = sheet.Look();
    const double last = want.width() - 1.1, half = (side - 1) / 2.0;
    const std::vector<Point> places = {{0.1, 0.1},       {last, 0.1}, {0.1, last},
                                       {last, last},     {20.3, 9.8}, {-1.0 * side, 15},
                                       {15, last + side}};
    sheet.Dots(places, {kRed, width});
    QPainter painter(&want);
    for (const auto& [x, y] : places) {
      painter.fillRect(qRound(x - half), qRound(y - half), side, side, Qt::red);
    }
    EXPECT_EQ(sheet.Look(), want) << width << ' ' << sheet.Ratio();
  }
}

TEST_F(QtCanvas, WhiteLineLeavesNothingOfAThinnerOne) {
  for (int i = 0; i < 2500; ++i) {
    const double ratio = kRatios[i % 5], angle = i * (std::numbers::pi / 32 + 2e-6);
    const double length = ratio * (i % 7 == 0 ? 0.2 : 3.1) * (i % 11);
    const Point from{35 * ratio + 0.17 * (i % 6), 35 * ratio + 0.23 * (i % 13)};
    const Point to{from.x + length * std::cos(angle), from.y + length * std::sin(angle)};
    Sheet sheet(70, ratio);
    const QImage blank = sheet.Look();
    sheet.Line(from, to, {kRed, 1 + i % 2});
    ASSERT_NE(sheet.Look(), blank);
    sheet.Line(from, to, {kWhite, 2 + i % 2});
    ASSERT_EQ(sheet.Look(), blank) << ratio << ' ' << angle << ' ' << length;
  }
}

TEST_F(QtCanvas, HugeNumbersShowWhatCrossesThePicture) {
  QImage shown[2];
  for (const bool huge : {false, true}) {
    Sheet sheet(200, 1.0);
    const double far = huge ? 1.7e308 : 500;
    sheet.Line({-far, 0.4 - far}, {40, 40.4}, {kRed, 1});
    sheet.Line({40, 40.4}, {far, 0.4 + far}, {kRed, 2});
    sheet.Line({far, 100.2}, {-far, 100.2}, {kInk, 3});
    sheet.Circle({{50, 60.3}, {0, 1}, huge ? 1.7e308 : 1e15}, {kRed, 1});
    sheet.Dots(std::vector<Point>{{far, 5}, {5, -far}}, {kRed, 2});
    sheet.Text({-far, 9}, "v", kInk), sheet.Text({9, far}, "v", kInk);
    shown[huge] = sheet.Look();
  }
  EXPECT_EQ(shown[0], shown[1]);
  EXPECT_TRUE(shown[0].pixel(20, 20) != qRgb(255, 255, 255) &&
              shown[0].pixel(9, 100) == qRgb(1, 0, 66));
}

// Told by the distance from the centre in a longer mantissa, independently of how it is drawn.
TEST_F(QtCanvas, CirclesOfAnyRadiusLieWhereTheyShould) {
  for (int i = 0; i <= 126; ++i) {
    const bool dotted = i % 2 == 1;
    const double radius = std::pow(10.0, 1.25 + i / 8.0), angle = 0.7 * i, ratio = 1 + i / 2 % 2;
    Sheet sheet(800, ratio);
    const Point touch{(400.3 + 350 * std::sin(2.1 * i)) * ratio, (390.6 + 2.5 * i) * ratio};
    sheet.Circle({touch, {std::cos(angle), std::sin(angle)}, radius}, {{0, 0, 0}, 1, dotted});
    const long double turn = angle;
    const auto x = touch.x + radius * std::cos(turn), y = touch.y + radius * std::sin(turn);
    const QImage& seen = sheet.Look();
    double ink = 0.0, off = 0.0;
    for (int place = 0; place < seen.width() * seen.height(); ++place) {
      const int column = place % seen.width(), row = place / seen.width();
      const double part = 1.0 - qRed(seen.pixel(column, row)) / 255.0;
      if (part == 0.0) continue;
      const auto gap = static_cast<double>(std::hypot(column - x, row - y) - radius);
      ASSERT_LT(std::abs(gap), (dotted ? 0.75 : 0.5) * ratio + 0.55) << radius << ' ' << angle;
      ink += part, off += part * gap;
    }
    // A solid line has as much ink as it is long and wide; both have it evenly on both sides.
    const double half = std::min(std::numbers::pi * radius, 1600 * ratio);
    int length = 0;
    for (double s = -half; s < half; ++s) {
      const long double at = turn + s / radius;
      length += seen.valid(static_cast<int>(x - radius * std::cos(at)),
                           static_cast<int>(y - radius * std::sin(at)));
    }
    EXPECT_GT(ink, (dotted ? 0.35 : 0.9) * length * ratio) << radius << ' ' << angle;
    EXPECT_LT(std::abs(off / ink), dotted ? 0.1 : 0.02) << radius << ' ' << angle;
  }
}

TEST_F(QtCanvas, TextStaysTheSameHoweverOftenItIsPrinted) {
  for (const double ratio : kRatios) {
    Sheet sheet(120, ratio), other(120, ratio);
    const auto print = [](Sheet& on, const char* text) { on.Text({5.2, 20.4}, text, kInk); };
    print(sheet, "β = 0.26 Ταχύτης"), print(other, "γ = 0.26 Ταχύτης");
    EXPECT_NE(sheet.Look(), other.Look());  // letters, not the boxes that stand for missing ones
    sheet.Dots(std::vector<Point>{{12, 24}}, {kInk, 9});
    const QImage once = sheet.Look();
    sheet.Line({60 * ratio, 0}, {60 * ratio, 50 * ratio}, {kWhite, 3});
    EXPECT_NE(sheet.Look(), once);
    for (int i = 0; i < 1000; ++i) print(sheet, "β = 0.26 Ταχύτης");
    EXPECT_EQ(sheet.Look(), once);
    for (const double cut : {-20.0, -5.0, 110 * ratio}) sheet.Text({cut, cut}, "Ταχύτης", kInk);
  }
}

TEST_F(QtCanvas, PictureOutlivesTheMoveToAnotherScreenButNotAnotherSize) {
  Sheet sheet(60, 1.0);
  for (const double y : {30.0, 31.0}) sheet.Line({10, y}, {50, y}, {kRed, 3});
  sheet.Resize({60, 60}, 2.0);
  sheet.Line({20, 90.5}, {100, 90.5}, {kInk, 1});
  QString seen;
  for (const int y : {61, 89, 90, 91, 92}) seen += sheet.Look().pixelColor(60, y).name();
  EXPECT_EQ(seen, "#ff0000#ffffff#010042#010042#ffffff");
  sheet.Resize({61, 61}, 2.0);
  EXPECT_EQ(sheet.Look(), Sheet(61, 2.0).Look());
}

}  // namespace
