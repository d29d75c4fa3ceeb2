#include "sketch/sketch.h"

#include <cmath>
#include <limits>
#include <tuple>

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
  if (x1 == x1_ && y1 == y1_ && x2 == x2_ && y2 == y2_) return;
  Draw({.kind = Drawing::Kind::Scale, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2});
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

toolkit::Cursor Sketch::CursorAt(Point place) const {
  const std::optional<Place> at = PlaceOf(place);
  return CursorOver && at ? CursorOver(at->x, at->y, Pressed()) : toolkit::Cursor::Arrow;
}

void Sketch::Cls() {
  if (canvas() == nullptr) return;
  record_.Clear();
  scaleAtStart_ = {.kind = Drawing::Kind::Scale, .x1 = x1_, .y1 = y1_, .x2 = x2_, .y2 = y2_};
  canvas()->Clear(toolkit::kWhite);
}

void Sketch::Line(double x1, double y1, double x2, double y2, Colour colour) {
  Draw({.kind = Drawing::Kind::Line,
        .colour = colour,
        .dotted = DrawStyle == kDotted,
        .width = DrawWidth,
        .x1 = x1,
        .y1 = y1,
        .x2 = x2,
        .y2 = y2});
}

void Sketch::Circle(double x, double y, double nx, double ny, double radius, Colour colour) {
  Draw({.kind = Drawing::Kind::Circle,
        .colour = colour,
        .dotted = DrawStyle == kDotted,
        .width = DrawWidth,
        .x1 = x,
        .y1 = y,
        .x2 = nx,
        .y2 = ny,
        .radius = radius});
}

void Sketch::PSet(double x, double y, Colour colour) {
  Draw({.kind = Drawing::Kind::Dot, .colour = colour, .width = DrawWidth, .x1 = x, .y1 = y});
}

void Sketch::PSetPixels(std::span<const Point> places) {
  if (canvas() != nullptr && !places.empty()) canvas()->Dots(places, {ForeColor, DrawWidth});
}

void Sketch::Print(const std::string& text) {
  if (canvas() == nullptr) return;
  if (mode_ == Mode::Drawing) Settle();
  if (mode_ == Mode::Drawing || mode_ == Mode::Settling) {
    record_.AddText({.kind = Drawing::Kind::Text, .x1 = CurrentX, .y1 = CurrentY}, text);
  }
  if (mode_ != Mode::Settling) ShowText(CurrentX, CurrentY, text);
}

void Sketch::Repeat(const Record::Repetition& draw) {
  record_.Repeat(draw);
  Run(Mode::Repeating, draw);
}

void Sketch::Settle() {
  if (!record_.Repeats()) return;
  for (const Record::Repetition& draw : record_.TakeRepetitions()) Run(Mode::Settling, draw);
}

// The drawing state is the program's: it is the same afterwards.
void Sketch::Redraw() {
  if (canvas() == nullptr || !record_.Complete()) return;
  canvas()->Clear(toolkit::kWhite);
  Run(Mode::Redrawing, [this] {
    Show(scaleAtStart_);
    record_.Replay([this](const Drawing& drawing) { Show(drawing); });
  });
}

void Sketch::Run(Mode mode, const std::function<void()>& draw) {
  const auto before = std::tuple(mode_, CurrentX, CurrentY, DrawWidth, DrawStyle);
  mode_ = mode;
  draw();
  if (mode == Mode::Repeating) {
    mode_ = std::get<Mode>(before);
  } else {
    std::tie(mode_, CurrentX, CurrentY, DrawWidth, DrawStyle) = before;
  }
}

void Sketch::Draw(const Drawing& drawing) {
  if (canvas() == nullptr && drawing.kind != Drawing::Kind::Scale) return;
  switch (mode_) {
    case Mode::Drawing:
      Settle();
      [[fallthrough]];
    case Mode::Settling:
      record_.Add(drawing);
      break;
    case Mode::Repeating:
      if (drawing.kind == Drawing::Kind::Line && drawing.colour == toolkit::kWhite) {
        record_.AddEraser(drawing);
      }
      break;
    case Mode::Redrawing:
      break;
  }
  if (mode_ != Mode::Settling) Show(drawing);
}

void Sketch::Show(const Drawing& drawing) {
  switch (drawing.kind) {
    case Drawing::Kind::Scale:
      x1_ = drawing.x1;
      y1_ = drawing.y1;
      x2_ = drawing.x2;
      y2_ = drawing.y2;
      mapping_ = {};
      break;
    case Drawing::Kind::Line:
      ShowLine(drawing);
      break;
    case Drawing::Kind::Circle:
      ShowCircle(drawing);
      break;
    case Drawing::Kind::Dot: {
      const Point place = ToPixels()(drawing.x1, drawing.y1);
      if (Nearby(place)) canvas()->Dots({&place, 1}, {drawing.colour, drawing.width});
      break;
    }
    case Drawing::Kind::Text:
      ShowText(drawing.x1, drawing.y1, record_.Text(drawing.text));
      break;
  }
}

void Sketch::ShowLine(const Drawing& line) {
  if (!Finite(line.x1, line.y1) || !Finite(line.x2, line.y2)) return;
  // Cut in user units first: a coordinate near the largest double has no place among pixels.
  const auto near = toolkit::Clip({{line.x1, line.y1}, {line.x2, line.y2}}, kSurroundings);
  if (!near) return;
  const Mapping& map = ToPixels();
  const Point from = map(near->from.x, near->from.y);
  const Point to = map(near->to.x, near->to.y);
  if (!Finite(from) || !Finite(to)) return;
  canvas()->Line(from, to, {line.colour, line.width, line.dotted});
}

void Sketch::ShowCircle(const Drawing& circle) {
  if (circle.radius == 0.0 || !Finite(circle.x2, circle.y2)) return;
  const Mapping& map = ToPixels();
  const Point touch = map(circle.x1, circle.y1);
  const double pixels = std::abs(circle.radius * map.factorX);
  // The scale may turn an axis round, never stretch it: the sketch and its scale are square.
  const double side = circle.radius < 0.0 ? -1.0 : 1.0;
  const Point toward{side * std::copysign(1.0, map.factorX) * circle.x2,
                     side * std::copysign(1.0, map.factorY) * circle.y2};
  if (!Nearby(touch) || !std::isfinite(pixels)) return;
  canvas()->Circle({touch, toward, pixels}, {circle.colour, circle.width, circle.dotted});
}

void Sketch::ShowText(double x, double y, const std::string& text) {
  const Point place = ToPixels()(x, y);
  if (Nearby(place)) canvas()->Text(place, text, ForeColor);
}

std::optional<Sketch::Place> Sketch::PlaceOf(Point place) const {
  if (canvas() == nullptr) return std::nullopt;
  const Mapping& map = ToPixels();
  const double x = (place.x - map.originX) / map.factorX;
  const double y = (place.y - map.originY) / map.factorY;
  // A place that is no number is none: it must not get into what the handlers store.
  constexpr double kLargest = std::numeric_limits<float>::max();
  if (!(std::abs(x) <= kLargest && std::abs(y) <= kLargest)) return std::nullopt;
  return Place{static_cast<float>(x), static_cast<float>(y)};
}

void Sketch::Raise(const MouseHandler& handler, const toolkit::MouseEvent& event) {
  const std::optional<Place> at = PlaceOf(event.place);
  if (!handler || !at) return;
  handler(static_cast<short>(event.button), static_cast<short>(event.shift), at->x, at->y);
}

}  // namespace sketch
