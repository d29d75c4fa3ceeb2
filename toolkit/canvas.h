#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace toolkit {

struct Colour {
  std::uint8_t red, green, blue;
  bool operator==(const Colour&) const = default;
};

inline constexpr Colour kWhite{255, 255, 255};

// A place on a canvas, in its pixels: (0, 0) is the centre of the top-left pixel, x grows to the
// right, y downward.
struct Point {
  double x, y;
};

// A circle by one point of it, the unit vector from there to its centre, and its radius. Where it
// passes stays exact at any radius; a centre 10^15 away would have lost the digits that say so.
struct CircleShape {
  Point touch, towardCentre;
  double radius;
};

struct Pen {
  Colour colour;
  int width = 1;  // pixels at 96 dots per inch; a denser canvas draws as much thicker
  bool dotted = false;
};

struct Extent {
  int width, height;
  bool operator==(const Extent&) const = default;
};

// The drawing surface of a picture box. It keeps its picture. Every number that reaches it is
// finite; what lies outside its extent is cut off.
//
// Lines and circles are smooth; one in the background colour erases, that is, leaves no trace of
// a thinner one under it. A dot is a crisp square. Drawing a dot or a text again where it already
// stands changes no pixel.
class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual Extent Size() const = 0;
  // The side of the square that a dot of a pen this wide fills, in the canvas's own pixels. A
  // square of odd side stands around the pixel nearest to the place, one of even side around the
  // nearest corner of pixels.
  virtual int DotSide(int penWidth) const = 0;
  virtual void Clear(Colour background) = 0;
  virtual void Line(Point from, Point to, const Pen& pen) = 0;
  virtual void Circle(const CircleShape& circle, const Pen& pen) = 0;
  virtual void Dots(std::span<const Point> places, const Pen& pen) = 0;
  virtual void Text(Point topLeft, const std::string& text, Colour colour) = 0;
};

}  // namespace toolkit
