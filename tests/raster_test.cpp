#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "toolkit/headless/stand_in_letters.h"
#include "toolkit/lengths.h"
#include "toolkit/raster/canvas.h"

namespace {

using toolkit::Colour, toolkit::kWhite, toolkit::Point;

constexpr toolkit::raster::Packing kPacking{16, 8, 0};
constexpr Colour kBlack{0, 0, 0};
constexpr Colour kRed{255, 0, 0};
constexpr Colour kInk{1, 0, 66};
constexpr double kDensities[] = {0.5, 1.0, 1.25, 1.5, 2.0, 3.0};

toolkit::headless::StandInLetters letters{kPacking};

struct Sheet : toolkit::raster::RasterCanvas {
  Sheet(int width, int height, double density) : RasterCanvas(kPacking, letters) {
    Resize({width, height}, density);
  }
  Sheet(int side, double density) : Sheet(side, side, density) {}

  std::vector<std::uint32_t> Seen() {
    const auto look = Look();
    return {look.bits, look.bits + look.stride * look.height};
  }
  bool Shows(Colour colour, int x, int y) { return Look().Row(y)[x] == kPacking(colour); }
};

TEST(Raster, DotsAreCrispSquaresUpToTheCorners) {
  constexpr int kSide = 40;
  for (int i = 0; i < 18; ++i) {
    const double density = kDensities[i % 6];
    const int width = 1 + i / 6;
    const int side = std::max(1, static_cast<int>(std::lround(width * density)));
    Sheet sheet(kSide, density);
    EXPECT_EQ(sheet.DotSide(width), side);
    auto want = sheet.Seen();
    const double last = kSide - 1.1, out = side;
    const std::vector<Point> places = {{0.1, 0.1},   {last, 0.1},  {0.1, last},
                                       {last, last}, {20.3, 9.8},  {30, 20},
                                       {-out, 15},   {25.5, 25.4}, {15, kSide - 1 + out}};
    for (int pixel = 0; pixel < kSide * kSide; ++pixel) {
      for (const auto& [x, y] : places) {
        const long left = std::lround(x - (side - 1) / 2.0), column = pixel % kSide;
        const long top = std::lround(y - (side - 1) / 2.0), row = pixel / kSide;
        const bool inside =
            column >= left && column < left + side && row >= top && row < top + side;
        if (inside) want[pixel] = kPacking(kRed);
      }
    }
    sheet.Dots(places, {kRed, width});
    EXPECT_EQ(sheet.Seen(), want) << width << ' ' << density;
  }
}

TEST(Raster, WhiteLineLeavesNothingOfAThinnerOne) {
  for (int i = 0; i < 3000; ++i) {
    const double density = kDensities[i % 6], angle = i * (std::numbers::pi / 32 + 2e-6);
    const double length = density * (i % 7 == 0 ? 0.2 : 3.1) * (i % 11);
    const Point from{35 * density + 0.17 * (i % 6), 35 * density + 0.23 * (i % 13)};
    const Point to{from.x + length * std::cos(angle), from.y + length * std::sin(angle)};
    Sheet sheet(static_cast<int>(70 * density), density);
    const auto blank = sheet.Seen();
    sheet.Line(from, to, {kRed, 1 + i % 2});
    ASSERT_NE(sheet.Seen(), blank);
    sheet.Line(from, to, {kWhite, 3});
    ASSERT_EQ(sheet.Seen(), blank) << density << ' ' << angle << ' ' << length;
  }
}

TEST(Raster, HugeNumbersShowWhatCrossesThePicture) {
  const auto drawn = [](double far, double radius) {
    Sheet sheet(200, 1.0);
    sheet.Line({-far, 0.4 - far}, {40, 40.4}, {kRed, 1});
    sheet.Line({40, 40.4}, {far, 0.4 + far}, {kRed, 2});
    sheet.Line({far, 100.2}, {-far, 100.2}, {kInk, 3});
    sheet.Circle({{50, 60.3}, {0, 1}, radius}, {kRed, 1});
    sheet.Dots(std::vector<Point>{{far, 5}, {5, -far}, {-far, far}}, {kRed, 2});
    for (const Point place : {Point{-far, 9}, Point{9, far}}) sheet.Text(place, "v", kInk);
    EXPECT_TRUE(!sheet.Shows(kWhite, 20, 20) && sheet.Shows(kInk, 9, 100));
    EXPECT_FALSE(sheet.Shows(kWhite, 199, 60));
    sheet.Circle({{100, 150}, {0, 1}, radius}, {kInk, 1, true});
    for (int x = 4; x < 196; x += 4) EXPECT_FALSE(sheet.Shows(kWhite, x, 150)) << x;
    sheet.Line({-9, 150}, {209, 150}, {kWhite, 9});
    return sheet.Seen();
  };
  EXPECT_EQ(drawn(500, 1e15), drawn(1.7e308, 1.7e308));
}

// Told by the distance from the centre in a longer mantissa, independently of how it is drawn. The
// sheets are wide and high ones, and the circles come into all their corners.
TEST(Raster, CirclesOfAnyRadiusLieWhereTheyShould) {
  for (int i = 0; i <= 126; ++i) {
    const bool dotted = i % 2 == 1;
    const double radius = std::pow(10.0, 1.25 + i / 8.0), angle = 0.7 * i, density = 1 + i / 2 % 2;
    const int wide = i % 3 == 0 ? 600 : 300, high = i % 3 == 1 ? 600 : 300;
    Sheet sheet(wide, high, density);
    const Point touch{wide * (0.5 + 0.49 * std::sin(2.1 * i)), high * (0.5 + 0.49 * std::cos(i))};
    sheet.Circle({touch, {std::cos(angle), std::sin(angle)}, radius}, {kBlack, 1, dotted});
    const long double turn = angle;
    const auto x = touch.x + radius * std::cos(turn), y = touch.y + radius * std::sin(turn);
    double ink = 0.0, off = 0.0, length = 0.0;
    const auto seen = sheet.Seen();
    for (int place = 0; place < wide * high; ++place) {
      const int column = place % wide, row = place / wide;
      const auto gap = static_cast<double>(std::hypot(column - x, row - y) - radius);
      length += std::abs(gap) < 4 ? 1.0 / 8 : 0;  // a band of 8 pixels around the circle
      const double part = 1.0 - (seen[place] & 0xff) / 255.0;
      if (!dotted) {
        const double ideal = std::clamp(0.5 + density / 2 - std::abs(gap), 0.0, 1.0);
        ASSERT_NEAR(part, ideal, 0.03) << radius << ' ' << angle << ' ' << place;
      }
      if (part == 0.0) continue;
      ASSERT_LT(std::abs(gap), 0.75 * density + 0.55) << radius << ' ' << angle;
      ink += part;
      off += part * gap;
    }
    if (!dotted) continue;
    // The dots leave out about half of the line, and lie evenly on both sides of it.
    EXPECT_GT(ink, 0.35 * length * density) << radius << ' ' << angle;
    EXPECT_LT(ink, 0.55 * length * density + 10) << radius << ' ' << angle;
    EXPECT_LT(std::abs(off / ink), 0.22) << radius << ' ' << angle;
  }
}

// The darker of text and picture counts in each component, so nothing changes the second time. What
// lies beyond an edge is cut off exactly there.
TEST(Raster, TextStaysTheSameHoweverOftenItIsPrinted) {
  for (const double density : kDensities) {
    constexpr Colour kGreen{9, 200, 9};
    const int side = static_cast<int>(120 * density), size = toolkit::FontPixels(8.25F, density);
    Sheet sheet(side, density);
    sheet.Clear(kGreen);
    for (const Colour colour : {kInk, kRed, kInk}) sheet.Text({5.2, 20.4}, "\xff", colour);
    for (const int row : {20, 19 + size}) EXPECT_TRUE(sheet.Shows({1, 0, 0}, 5, row)) << density;
    for (const int row : {19, 20 + size}) EXPECT_TRUE(sheet.Shows(kGreen, 5, row)) << density;
    EXPECT_TRUE(sheet.Shows(kGreen, 4, 20));

    Sheet whole(side, density), cut(side, density);
    whole.Text({20, 30}, "Ταχύτης", kInk);
    for (int i = 0; i < 3; ++i) cut.Text({-7, -3}, "Ταχύτης", kInk);
    const auto want = whole.Look(), got = cut.Look();
    for (int x = 0; x < side - 27; ++x) EXPECT_EQ(got.Row(0)[x], want.Row(33)[x + 27]);
  }
}

// 6 pixels of ink and 4 of white at 96 dots per inch; a white edge around everything.
TEST(Raster, KeyboardsPointerStandsOverThePicture) {
  const struct {
    int along, up;
    Colour with, without;  // what is pulled
  } looks[] = {{0, 11, kRed, kRed},    {0, 9, kWhite, kWhite}, {0, 7, kBlack, kBlack},
               {0, 5, kWhite, kWhite}, {0, 4, kRed, kRed},     {-7, 0, kBlack, kBlack},
               {11, 0, kBlack, kRed},  {15, 0, kBlack, kRed},  {17, 0, kWhite, kRed},
               {19, 0, kWhite, kRed},  {21, 0, kBlack, kRed},  {41, 0, kBlack, kRed},
               {45, 0, kBlack, kRed},  {47, 0, kWhite, kRed},  {30, 2, kWhite, kRed},
               {30, 4, kRed, kRed},    {60, 2, kBlack, kRed},  {60, 4, kWhite, kRed},
               {60, 6, kRed, kRed},    {62, 0, kBlack, kRed}};
  for (const int density : {2, 3}) {
    Sheet sheet(100 * density, density);
    sheet.Clear(kRed);
    toolkit::KeyPointer at{{20.0 * density, 30.0 * density}, Point{80.0 * density, 30.0 * density}};
    for (const bool pulls : {true, false}) {
      if (!pulls) at.tip = {};
      const auto shape = toolkit::PointerShape(at, density);
      const auto seen = sheet.Look(shape);
      for (const auto& [along, up, with, without] : looks) {
        const int column = (20 + along) * density, row = (30 - up) * density;
        EXPECT_EQ(seen.Row(row)[column], kPacking(pulls ? with : without))
            << density << ' ' << pulls << ' ' << along << ' ' << up;
      }
    }
    EXPECT_TRUE(sheet.Shows(kRed, 20 * density, 23 * density));
  }
  EXPECT_LT(toolkit::PointerShape({{0, 0}, Point{1e30, 0}}, 1).size(), 3000U);
}

// What shows the canvas hears once of any number of changes, until it has looked.
TEST(Raster, TellsOfAChangeOnce) {
  int told = 0;
  toolkit::raster::RasterCanvas canvas(kPacking, letters, [&] { ++told; });
  for (int look = 1; look <= 3; ++look) {
    canvas.Clear(kWhite);
    canvas.Line({0, 0}, {1, 1}, {kRed, 1});
    EXPECT_EQ(told, look);
    canvas.Look();
  }
}

TEST(Raster, StretchesWhatNobodyCanDrawAgain) {
  Sheet sheet(60, 50, 1.0);
  for (const double y : {30.0, 31.0}) sheet.Line({10, y}, {50, y}, {kRed, 3});
  EXPECT_FALSE(sheet.Resize({60, 50}, 1.0, true));
  EXPECT_TRUE(sheet.Resize({120, 100}, 2.0, true));
  sheet.Line({20, 90.5}, {100, 90.5}, {kInk, 1});
  for (const auto& [y, want] : {std::pair(61, kRed), {89, kWhite}, {90, kInk}, {91, kInk}}) {
    EXPECT_TRUE(sheet.Shows(want, 60, y) && sheet.Shows(kWhite, 5, y)) << y;
  }
  sheet.Resize({61, 61}, 2.0);
  EXPECT_EQ(sheet.Seen(), Sheet(61, 2.0).Seen());
}

}  // namespace
