#pragma once

#include <string>

#include "sketch/sketch.h"
#include "track/geometry.h"

namespace scenes {

// The same colours in every picture. The centripetal and the tangential acceleration look alike, as
// the parts of one thing.
namespace colours {
inline constexpr sketch::Colour kVelocity{255, 0, 0};
inline constexpr sketch::Colour kCentripetal{5, 150, 255};
inline constexpr sketch::Colour kTangential{5, 150, 250};
inline constexpr sketch::Colour kTotal{0, 0, 0};
inline constexpr sketch::Colour kCurvature{250, 0, 150};
inline constexpr sketch::Colour kFriction{155, 155, 0};
}  // namespace colours

// The track is drawn as dots at x = 0 to 20, a twentieth of a sketch unit apart.
inline constexpr int kTrackSamples = 401;
double SampleAbscissa(int sample);

// An arrow from a place, both in sketch units (see sketch::DrawVector).
void DrawArrow(sketch::Sketch& sketch, const track::Vector& from, const track::Vector& vector,
               sketch::Colour colour);

inline track::Vector Place(const track::TrackPoint& point) {
  return {point.x, point.y};
}

// The whole track in the foreground colour.
void DrawTrack(sketch::Sketch& sketch, const track::Parameters& track);

// The circle of curvature at a point, dotted; nothing where the track is straight.
void DrawCircleOfCurvature(sketch::Sketch& sketch, const track::TrackPoint& point);

// A text with its top-left corner at a place in sketch units.
void PrintAt(sketch::Sketch& sketch, double x, double y, const std::string& text);

// A line of a legend: the text, and a sample arrow of length 1.
struct LegendLine {
  track::Vector text;
  track::Vector arrow;
  sketch::Colour colour;
};
void DrawLegend(sketch::Sketch& sketch, const LegendLine& line, const std::string& text);

}  // namespace scenes
