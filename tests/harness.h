#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "app/firststep.h"
#include "toolkit/headless/desktop.h"

// The whole program on a headless desktop, and its picture read back in sketch units.
struct Program {
  using Operation = toolkit::headless::Operation;
  using Kind = Operation::Kind;
  using Colour = toolkit::Colour;

  // An arrow (shaft start and components), a dot or text (place), a circle (centre).
  struct Mark {
    double x = 0, y = 0, vx = 0, vy = 0, radius = 0;
    Colour colour{};
    int width = 1;
    bool dotted = false;
    std::string text{};
  };
  using Marks = std::vector<Mark>;

  explicit Program(int width = 1366, int height = 768)
      : desktop(width, height), window(app::Main(desktop)) {}
  toolkit::headless::HeadlessDesktop desktop;
  std::unique_ptr<app::firststep> window;

  std::vector<Operation>& Operations() { return desktop.Picture().operations; }
  void Forget() { Operations().clear(); }
  int Count(Kind kind) { return static_cast<int>(Read(kind).size()); }

  Marks Dots() { return Read(Kind::Dot); }
  Marks Texts() { return Read(Kind::Text); }
  Marks Circles() { return Read(Kind::Circle); }
  Marks Lines() { return Read(Kind::Line); }
  // Every arrow is three lines, its shaft first.
  Marks Arrows() {
    Marks arrows;
    const Marks lines = Lines();
    for (std::size_t i = 0; i + 2 < lines.size(); i += 3) arrows.push_back(lines[i]);
    return arrows;
  }

  double Unit() { return (desktop.Picture().Size().width - 1) / 20.0; }  // pixels per sketch unit
  toolkit::Point Pixel(double x, double y) { return {x * Unit(), (10 - y) * Unit()}; }
  void Press(double x, double y, int shift = 0, int button = 1) {
    window->eikona.UserMouseDown({button, shift, Pixel(x, y)});
  }
  void Release(double x, double y, int shift = 0, int button = 1) {
    window->eikona.UserMouseUp({button, shift, Pixel(x, y)});
  }

 private:
  Marks Read(Kind wanted) {
    Marks marks;
    const double u = Unit();
    for (const auto& [kind, pen, from, to, radius, text] : Operations()) {
      if (kind != wanted) continue;
      marks.push_back(
          {from.x / u, 10 - from.y / u, 0, 0, radius / u, pen.colour, pen.width, pen.dotted, text});
      Mark& m = marks.back();
      if (kind == Kind::Line) m.vx = (to.x - from.x) / u, m.vy = (from.y - to.y) / u;
      if (kind == Kind::Circle) m.x += m.radius * to.x, m.y -= m.radius * to.y;
    }
    return marks;
  }
};

// The program with a track of its own, where the body is on it, and what the picture shall show of
// its motion: from the curve and the laws of motion alone.
struct Motion : Program {
  static constexpr Colour kInk{1, 0, 66}, kRed{255, 0, 0};
  static constexpr double kPi = std::numbers::pi;

  Motion(int amplitude, int degrees, int speed, int acceleration) {
    window->platosvalue.UserScroll(amplitude), window->syxnotikamp.UserScroll(degrees);
    window->arxikives.UserScroll(speed), window->epitaxyno.UserScroll(acceleration);
    A = amplitude / 10.0, w = degrees * kPi / 180, v0 = speed, at = acceleration / 10.0;
  }
  double A, w, v0, at, x = 0, y = 0, cosine = 1, sine = 0, curvature = 0, v = 0, an = 0;
  Marks arrows{}, texts{};  // that the picture shall show

  // The length from the origin to this x of a sine curve that begins with the slope.
  double Length(double to, double slope) const {
    const double K = std::hypot(1, slope), half = std::round(w * to / kPi);
    const double rest = std::ellint_2(slope / K, w * to - half * kPi);
    return K / w * (2 * half * std::comp_ellint_2(slope / K) + rest);
  }
  void MoveTo(double abscissa, double speed) {
    x = abscissa, y = A * std::sin(w * x), v = speed;
    const double slope = A * w * std::cos(w * x);
    cosine = 1 / std::hypot(1, slope), sine = slope * cosine;
    curvature = -w * w * y * std::pow(cosine, 3);
    an = std::abs(curvature) < 1e-15 ? 0 : v * v * curvature;
  }
  // By its parts along the tangent and along the normal on its left.
  Mark Vector(double along, double left, Colour colour = {}, int width = 1) const {
    return {x, y, along * cosine - left * sine, along * sine + left * cosine, 0, colour, width};
  }
  // Arrows that are too short are not drawn.
  void Arrow(double along, double left, Colour colour, int width = 1) {
    if (std::hypot(along, left) > 0.21773) arrows.push_back(Vector(along, left, colour, width));
  }
  void Text(double leftEdge, double top, const std::string& text) {
    texts.push_back({leftEdge, top, 0, 0, 0, kInk, 1, false, text});
  }

  // How far two marks are apart that else look the same.
  static double Miss(const Mark& a, const Mark& b) {
    if (!(a.colour == b.colour) || a.width != b.width || a.text != b.text) return INFINITY;
    return std::hypot(a.x - b.x, a.y - b.y) + std::hypot(a.vx - b.vx, a.vy - b.vy);
  }
  // Which of the arrows and then of the texts is the first that is not as it shall be; -1 if none.
  // From then on nothing is expected.
  long FirstWrong(double tolerance) {
    Marks got = Arrows(), want = std::exchange(arrows, {});
    for (const Mark& text : Texts()) got.push_back(text);
    for (const Mark& text : std::exchange(texts, {})) want.push_back(text);
    const auto same = [=](const Mark& a, const Mark& b) { return Miss(a, b) < tolerance; };
    const auto [g, m] = std::mismatch(got.begin(), got.end(), want.begin(), want.end(), same);
    return g == got.end() && m == want.end() ? -1 : g - got.begin();
  }
};
