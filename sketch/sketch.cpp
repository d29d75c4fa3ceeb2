#include "sketch/sketch.h"

#include <cmath>
#include <limits>

#include "toolkit/clip.h"

namespace sketch {
namespace {

using toolkit::Point;

// Far enough that no part of a picture is cut by it, near enough that pixels count exactly there.
constexpr double kFar = 1e9;
constexpr toolkit::Box kSurroundings{-kFar, -kFar, kFar, kFar};

bool Finite(double a, double b) {
  return std::isfinite(a) && std::isfinite(b);
}

bool Finite(Point p) {
  return Finite(p.x, p.y);
}

bool Nearby(Point p) {
  return std::abs(p.x) <= kFar && std::abs(p.y) <= kFar;
}

}  // namespace

void Sketch::Scale(double x1, double y1, double x2, double y2) {
  x1_ = x1;
  y1_ = y1;
  x2_ = x2;
  y2_ = y2;
  mapping_ = {};
}

const Mapping& Sketch::ToPixels() const {
  const toolkit::Extent size = canvas() != nullptr ? canvas()->Size() : toolkit::Extent{1, 1};
  // Every dot asks; the answer changes with the scale and the canvas only.
  if (!(size == mapping_.size)) {
    const double fx = (size.width - 1) / ScaleWidth();
    const double fy = (size.height - 1) / ScaleHeight();
    mapping_ = {size, -x1_ * fx, fx, -y1_ * fy, fy};
  }
  return mapping_;
}

std::optional<toolkit::KeyPointer> Sketch::PointerOnCanvas() const {
  const std::optional<Pointer>& pointer = KeyPointer;
  if (!pointer) return std::nullopt;
  const Mapping& map = ToPixels();
  toolkit::KeyPointer shown{map(pointer->x, pointer->y), std::nullopt};
  if (pointer->tipX != pointer->x || pointer->tipY != pointer->y) {
    shown.tip = map(pointer->tipX, pointer->tipY);
  }
  return shown;
}

void Sketch::Cls() {
  if (canvas() != nullptr) canvas()->Clear(toolkit::kWhite);
}

void Sketch::Line(double x1, double y1, double x2, double y2, Colour colour) {
  if (canvas() == nullptr || !Finite(x1, y1) || !Finite(x2, y2)) return;
  // Cut in user units first: a coordinate near the largest double has no place among pixels.
  const auto near = toolkit::Clip({{x1, y1}, {x2, y2}}, kSurroundings);
  if (!near) return;
  const Mapping& map = ToPixels();
  const Point from = map(near->from.x, near->from.y);
  const Point to = map(near->to.x, near->to.y);
  if (!Finite(from) || !Finite(to)) return;
  canvas()->Line(from, to, {colour, DrawWidth, DrawStyle == kDotted});
}

void Sketch::Circle(double x, double y, double nx, double ny, double radius, Colour colour) {
  if (canvas() == nullptr || radius == 0.0 || !Finite(nx, ny)) return;
  const Mapping& map = ToPixels();
  const Point touch = map(x, y);
  const double pixels = std::abs(radius * map.factorX);
  // The scale may turn an axis round, never stretch it: the sketch and its scale are square.
  const double side = radius < 0.0 ? -1.0 : 1.0;
  const Point toward{side * std::copysign(1.0, map.factorX) * nx,
                     side * std::copysign(1.0, map.factorY) * ny};
  if (!Nearby(touch) || !std::isfinite(pixels)) return;
  canvas()->Circle({touch, toward, pixels}, {colour, DrawWidth, DrawStyle == kDotted});
}

void Sketch::PSet(double x, double y, Colour colour) {
  if (canvas() == nullptr) return;
  const Point place = ToPixels()(x, y);
  if (!Nearby(place)) return;
  canvas()->Dots({&place, 1}, {colour, DrawWidth});
}

void Sketch::PSetPixels(std::span<const Point> places) {
  if (canvas() != nullptr && !places.empty()) canvas()->Dots(places, {ForeColor, DrawWidth});
}

void Sketch::Print(const std::string& text) {
  if (canvas() == nullptr) return;
  const Point place = ToPixels()(CurrentX, CurrentY);
  if (!Nearby(place)) return;
  canvas()->Text(place, text, ForeColor);
}

void Sketch::Raise(const MouseHandler& handler, const toolkit::MouseEvent& event) {
  if (!handler || canvas() == nullptr) return;
  const Mapping& map = ToPixels();
  const double x = (event.place.x - map.originX) / map.factorX;
  const double y = (event.place.y - map.originY) / map.factorY;
  // A press nowhere is no press: nothing that is no number gets into what the handlers store.
  constexpr double kLargest = std::numeric_limits<float>::max();
  if (!(std::abs(x) <= kLargest && std::abs(y) <= kLargest)) return;
  handler(static_cast<short>(event.button), static_cast<short>(event.shift), static_cast<float>(x),
          static_cast<float>(y));
}

}  // namespace sketch
