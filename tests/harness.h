#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <iterator>
#include <memory>
#include <numbers>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "app/firststep.h"
#include "toolkit/headless/desktop.h"

using Kind = toolkit::headless::Operation::Kind;
using Vector = std::complex<double>;

// What a picture is made of, in sketch units.
struct Mark {
  Kind kind{};
  Vector place{};     // a line's start, a circle's touch point, a dot, a text's corner
  Vector vector{};    // a line's components; the direction to a circle's centre
  double radius = 0;  // a circle's
  toolkit::Pen pen{};
  std::string text{};

  // How far two marks are apart that else look the same.
  static double Miss(const Mark& a, const Mark& b) {
    const auto looks = [](const Mark& m) {
      return std::tie(m.kind, m.pen.colour, m.pen.width, m.pen.dotted, m.text);
    };
    if (looks(a) != looks(b)) return INFINITY;
    const double bend = a.radius == b.radius ? 0 : std::abs(a.radius / b.radius - 1);
    return std::abs(a.place - b.place) + std::abs(a.vector - b.vector) + bend;
  }

  std::string Told() const {
    static const char* const kNames[] = {"clear", "line", "circle", "dot", "text"};
    std::ostringstream told;
    told << kNames[static_cast<int>(kind)] << " at " << place << " by " << vector << ", radius "
         << radius << ", red " << int{pen.colour.red} << ", green " << int{pen.colour.green}
         << ", width " << pen.width << ", text " << text;
    return told.str();
  }
};
using Marks = std::vector<Mark>;

// The whole program on a headless desktop, and its picture read back in sketch units.
struct Program {
  explicit Program(int width = 1366, int height = 768)
      : desktop(width, height), window(app::Main(desktop)) {}

  toolkit::headless::HeadlessDesktop desktop;
  std::unique_ptr<app::firststep> window;
  toolkit::raster::RasterCanvas* painting = nullptr;

  // The amplitude, frequency, tangential acceleration, initial speed and time step.
  std::array<toolkit::ScrollBar*, 5> bars{&window->platosvalue, &window->syxnotikamp,
                                          &window->epitaxyno, &window->arxikives,
                                          &window->vimatimi};

  void Scroll(const std::vector<int>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) bars.at(i)->UserScroll(values[i]);
  }

  // From now on the sketch is painted, this many pixels to one at 96 dots per inch.
  void Paint(double density) { painting = &desktop.Paint(density); }

  std::vector<toolkit::headless::Operation>& Operations() { return desktop.Picture().operations; }
  void Forget() { Operations().clear(); }
  auto Count(Kind kind) {
    return std::ranges::count(Operations(), kind, &toolkit::headless::Operation::kind);
  }

  // All marks of a kind, in their order.
  Marks Read(Kind wanted) {
    Marks marks;
    for (const auto& [kind, pen, from, to, radius, text] : Operations()) {
      if (kind != wanted) continue;
      const Vector start(from.x, -from.y), end(to.x, -to.y);
      const Vector line = kind == Kind::Line ? (end - start) / Unit() : end;
      marks.push_back({kind, start / Unit() + Vector(0, 10), line, radius / Unit(), pen, text});
    }
    return marks;
  }

  // Every arrow is three lines: its shaft, and two barbs that lead back from its tip, 30 degrees to
  // either side. One that looks otherwise is marked as broken.
  Marks Arrows() {
    constexpr double kBarb = std::numbers::sqrt2 * 20 / 75;
    Marks arrows;
    const Marks lines = Read(Kind::Line);
    for (std::size_t i = 0; i + 2 < lines.size(); i += 3) {
      const Mark &shaft = lines[i], &left = lines[i + 1], &right = lines[i + 2];
      const Vector tip = shaft.place + shaft.vector;
      const Vector back = -shaft.vector / std::abs(shaft.vector);
      const double miss = std::abs(left.place - tip) + std::abs(right.place - tip) +
                          std::abs(left.vector + right.vector - back * kBarb * std::sqrt(3)) +
                          std::abs(left.vector * right.vector - back * back * kBarb * kBarb);
      arrows.push_back(shaft);
      if (!(miss < 1e-6)) arrows.back().text = "a broken arrow";
    }
    return arrows;
  }

  // All texts, one after another.
  std::string Said() {
    std::string said;
    for (const auto& operation : Operations()) said += operation.text;
    return said;
  }

  double Unit() {  // pixels per sketch unit
    const toolkit::Canvas* canvas = painting;
    if (canvas == nullptr) canvas = &desktop.Picture();
    return (canvas->Size().width - 1) / 20.0;
  }
  toolkit::Point Pixel(double x, double y) { return {x * Unit(), (10 - y) * Unit()}; }

  void Press(double x, double y, int shift = 0, int button = 1) {
    window->eikona.UserMouseDown({button, shift, Pixel(x, y)});
  }
  void Release(double x, double y, int shift = 0, int button = 1) {
    window->eikona.UserMouseUp({button, shift, Pixel(x, y)});
  }
};

// The program with a track of its own, where the body is on it, and what the picture shall show of
// its motion: from the curve and the laws of motion alone.
struct Motion : Program {
  using Colour = toolkit::Colour;
  static constexpr Colour kInk{1, 0, 66};
  static constexpr Colour kRed{255, 0, 0};
  static constexpr Colour kBlue{5, 150, 255};
  static constexpr double kPi = std::numbers::pi;

  Motion(int amplitude, int degrees, int speed, int acceleration)
      : A(amplitude / 10.0), w(degrees * kPi / 180), v0(speed), at(acceleration / 10.0) {
    Scroll({amplitude, degrees, acceleration, speed});
  }

  double A, w, v0, at;
  double x = 0, y = 0, curvature = 0, v = 0, an = 0;
  Vector tangent = 1;
  Marks expected{};

  // The length from the origin to this x of a sine curve that begins with the slope.
  double Length(double to, double slope) const {
    const double K = std::hypot(1, slope), half = std::round(w * to / kPi);
    const double rest = std::ellint_2(slope / K, w * to - half * kPi);
    return K / w * (2 * half * std::comp_ellint_2(slope / K) + rest);
  }

  void MoveTo(double abscissa, double speed) {
    x = abscissa;
    y = A * std::sin(w * x);
    v = speed;
    tangent = std::polar(1.0, std::atan(A * w * std::cos(w * x)));
    curvature = -w * w * y * std::pow(tangent.real(), 3);
    an = std::abs(curvature) < 1e-15 ? 0 : v * v * curvature;
  }

  // Whether the body comes that far, as the pictures without time count the distance.
  bool ArriveAt(double abscissa) {
    const double square = v0 * v0 + 2 * at * Length(abscissa, A);
    MoveTo(abscissa, std::sqrt(std::max(square, 0.0)));
    return square >= 0;
  }

  // Arrows that are too short are not drawn, nor circles that are straight.
  void Expect(const Mark& mark) {
    const bool tooShort = mark.kind == Kind::Line && std::abs(mark.vector) < 0.21773;
    if (!tooShort && std::isfinite(mark.radius)) expected.push_back(mark);
  }

  // By its parts along the tangent and along the normal on its left.
  void Arrow(double along, double left, Colour colour, int width = 1) {
    Expect({Kind::Line, {x, y}, Vector(along, left) * tangent, 0, {colour, width}});
  }
  void Dot(int width = 1) { Expect({Kind::Dot, {x, y}, 0, 0, {kInk, width}}); }
  void Text(double leftEdge, double top, const std::string& text) {
    Expect({Kind::Text, {leftEdge, top}, 0, 0, {kInk}, text});
  }
  void Legend(Colour colour, int width, Vector tail, Vector corner, const char* text) {
    Expect({Kind::Line, tail, 1, 0, {colour, width}});
    Text(corner.real(), corner.imag(), text);
  }
  void Track(int width = 1) {
    for (int i = 0; i <= 400; ++i) {
      MoveTo(i / 20.0, 0);
      Dot(width);
    }
  }

  // The circle of curvature touches the track, on the side to which the track bends.
  void PointOfTrack(int width = 1) {
    const Vector inward = Vector(0, std::copysign(1, curvature)) * tangent;
    const double radius = std::abs(1 / curvature);
    Expect({Kind::Circle, {x, y}, inward, radius, {{250, 0, 150}, width, true}});
    Dot(width);
    Arrow(v, 0, kRed, width);
    Arrow(0, A * an / 4, kBlue, width);
    Arrow(A * at / 4, 0, {5, 150, 250}, width);
  }

  // The first mark that is not as it shall be, kind after kind as they are declared; empty if there
  // is none. From then on nothing is expected.
  std::string Wrong(double tolerance, const std::vector<Kind>& kinds = {Kind::Line, Kind::Circle,
                                                                        Kind::Dot, Kind::Text}) {
    Marks got, want = std::exchange(expected, {});
    for (const Kind kind : kinds) {
      std::ranges::copy(kind == Kind::Line ? Arrows() : Read(kind), std::back_inserter(got));
    }
    std::ranges::stable_sort(want, {}, &Mark::kind);

    const auto same = [=](const Mark& a, const Mark& b) { return Mark::Miss(a, b) < tolerance; };
    const auto [bad, due] = std::ranges::mismatch(got, want, same);
    if (bad == got.end() && due == want.end()) return "";
    return "mark " + std::to_string(bad - got.begin()) + " of " + std::to_string(want.size()) +
           "\n  got  " + (bad == got.end() ? "nothing" : bad->Told()) +  //
           "\n  want " + (due == want.end() ? "nothing" : due->Told());
  }
};
