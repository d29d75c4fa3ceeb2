#include "scenes/parts.h"

#include "sketch/draw_vector.h"

namespace scenes {

// Tenths in half steps, multiplied in this order: the last digit may decide whether a body that
// stops at a sample still reaches it.
double SampleAbscissa(int sample) {
  return 0.1 * (0.5 * sample);
}

void DrawArrow(sketch::Sketch& sketch, const track::Vector& from, const track::Vector& vector,
               sketch::Colour colour) {
  sketch::DrawVector(from.x, from.y, vector.x, vector.y, sketch, colour.red, colour.green,
                     colour.blue);
}

void DrawTrack(sketch::Sketch& sketch, const track::Parameters& track) {
  for (int sample = 0; sample < kTrackSamples; ++sample) {
    const double x = SampleAbscissa(sample);
    sketch.PSet(x, track::Height(track, x));
  }
}

void DrawCircleOfCurvature(sketch::Sketch& sketch, const track::TrackPoint& point) {
  sketch.DrawStyle = sketch::kDotted;
  sketch.Circle(point.x, point.y, point.normal.x, point.normal.y, point.radius,
                colours::kCurvature);
  sketch.DrawStyle = sketch::kSolid;
}

void PrintAt(sketch::Sketch& sketch, double x, double y, const std::string& text) {
  sketch.CurrentX = x;
  sketch.CurrentY = y;
  sketch.Print(text);
}

void DrawLegend(sketch::Sketch& sketch, const LegendLine& line, const std::string& text) {
  PrintAt(sketch, line.text.x, line.text.y, text);
  DrawArrow(sketch, line.arrow, {1, 0}, line.colour);
}

}  // namespace scenes
