#pragma once

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "app/firststep.h"
#include "toolkit/headless/desktop.h"

// The whole program on a headless desktop, and its picture read back in sketch units.
struct Program {
  using Operation = toolkit::headless::Operation;
  using Kind = Operation::Kind;

  // An arrow (shaft start and components), a dot or text (place), a circle (centre).
  struct Mark {
    double x = 0, y = 0, vx = 0, vy = 0, radius = 0;
    toolkit::Colour colour{};
    int width = 1;
    bool dotted = false;
    std::string text{};
  };

  explicit Program(int width = 1366, int height = 768) : desktop(width, height) {
    window = app::Main(desktop);
  }
  toolkit::headless::HeadlessDesktop desktop;
  std::unique_ptr<app::firststep> window;

  std::vector<Operation>& Operations() { return desktop.Picture().operations; }
  void Forget() { Operations().clear(); }
  int Count(Kind kind) { return static_cast<int>(Pick(kind).size()); }

  std::vector<Mark> Dots() { return Marks(Kind::Dot); }
  std::vector<Mark> Texts() { return Marks(Kind::Text); }
  std::vector<Mark> Circles() { return Marks(Kind::Circle); }
  // Every arrow is three lines, its shaft first.
  std::vector<Mark> Arrows() {
    std::vector<Mark> arrows;
    const auto lines = Marks(Kind::Line);
    for (std::size_t i = 0; i + 2 < lines.size(); i += 3) arrows.push_back(lines[i]);
    return arrows;
  }
  std::vector<Mark> Lines() { return Marks(Kind::Line); }

  double Unit() { return (desktop.Picture().Size().width - 1) / 20.0; }  // pixels per sketch unit
  toolkit::Point Pixel(double x, double y) { return {x * Unit(), (10 - y) * Unit()}; }
  void Press(double x, double y, int shift = 0, int button = 1) {
    window->eikona.UserMouseDown({button, shift, Pixel(x, y)});
  }
  void Release(double x, double y, int shift = 0, int button = 1) {
    window->eikona.UserMouseUp({button, shift, Pixel(x, y)});
  }

 private:
  std::vector<Operation> Pick(Kind kind) {
    std::vector<Operation> picked;
    for (const Operation& o : Operations()) {
      if (o.kind == kind) picked.push_back(o);
    }
    return picked;
  }
  std::vector<Mark> Marks(Kind kind) {
    std::vector<Mark> marks;
    for (const Operation& o : Pick(kind)) {
      Mark m{.x = o.from.x / Unit(),
             .y = 10 - o.from.y / Unit(),
             .vx = (o.to.x - o.from.x) / Unit(),
             .vy = -(o.to.y - o.from.y) / Unit(),
             .radius = o.radius / Unit(),
             .colour = o.pen.colour,
             .width = o.pen.width,
             .dotted = o.pen.dotted,
             .text = o.text};
      if (kind == Kind::Circle) {
        m.x += m.radius * o.to.x;
        m.y -= m.radius * o.to.y;
      }
      marks.push_back(m);
    }
    return marks;
  }
};
