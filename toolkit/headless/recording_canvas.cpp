#include "toolkit/headless/recording_canvas.h"

#include <algorithm>
#include <cmath>

namespace toolkit::headless {

Extent RecordingCanvas::Size() const {
  const auto inside = [](float twips) {
    return std::max(1, static_cast<int>(std::lround(twips / kTwipsPerPixel)) - 2 * kFramePixels);
  };
  return {inside(box_.Width), inside(box_.Height)};
}

void RecordingCanvas::Clear(Colour background) {
  operations.push_back({.kind = Operation::Kind::Clear, .pen = {background}});
}

void RecordingCanvas::Line(Point from, Point to, const Pen& pen) {
  operations.push_back({.kind = Operation::Kind::Line, .pen = pen, .from = from, .to = to});
}

void RecordingCanvas::Circle(const CircleShape& circle, const Pen& pen) {
  operations.push_back({.kind = Operation::Kind::Circle,
                        .pen = pen,
                        .from = circle.touch,
                        .to = circle.towardCentre,
                        .radius = circle.radius});
}

void RecordingCanvas::Dots(std::span<const Point> places, const Pen& pen) {
  for (const Point& place : places) {
    operations.push_back({.kind = Operation::Kind::Dot, .pen = pen, .from = place});
  }
}

void RecordingCanvas::Text(Point topLeft, const std::string& text, Colour colour) {
  operations.push_back(
      {.kind = Operation::Kind::Text, .pen = {colour}, .from = topLeft, .text = text});
}

}  // namespace toolkit::headless
