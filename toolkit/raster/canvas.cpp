#include "toolkit/raster/canvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "toolkit/arc.h"
#include "toolkit/clip.h"
#include "toolkit/lengths.h"

namespace toolkit::raster {
namespace {

// How far beyond the edges lines are kept, in pixels: more than half of any pen's width. It is the
// same for all pens, so that an eraser follows exactly the line that it erases.
constexpr double kMargin = 64.0;

int Rounded(double value) {
  return static_cast<int>(std::lround(value));
}

}  // namespace

RasterCanvas::RasterCanvas(Packing packing, TileSource& letters, std::function<void()> changed)
    : packing_(packing), changed_(std::move(changed)), tiles_(letters) {
  ApplyFont();
}

bool RasterCanvas::Resize(Extent size, double density, bool keep) {
  size = {std::max(size.width, 1), std::max(size.height, 1)};
  if (size == size_ && density == density_) return false;
  const Pixels old = Picture();
  std::vector<std::uint32_t> bits(static_cast<std::size_t>(size.width) * size.height,
                                  packing_(background_));
  if (keep) Stretch(old, {bits.data(), size.width, size.height, size.width});
  bits_ = std::move(bits);
  size_ = size;
  density_ = density;
  ApplyFont();
  Touch();
  return true;
}

void RasterCanvas::SetFont(const std::string& name, float points) {
  fontName_ = name;
  fontPoints_ = points;
  ApplyFont();
}

Pixels RasterCanvas::Look(std::span<const Stroke> over) {
  reported_ = false;
  if (over.empty()) return Picture();
  shown_ = bits_;
  const Pixels shown{shown_.data(), size_.width, size_.height, size_.width};
  for (const Stroke& stroke : over) {
    const Ink ink{packing_(stroke.colour)};
    if (stroke.radius > 0.0) {
      const Point top{stroke.from.x, stroke.from.y - stroke.radius};
      PaintRing(shown, {top, {0.0, 1.0}, stroke.radius}, stroke.width, ink);
    } else {
      PaintLine(shown, stroke.from, stroke.to, stroke.width, ink);
    }
  }
  return shown;
}

int RasterCanvas::DotSide(int penWidth) const {
  return std::max(1, Rounded(penWidth * density_));
}

void RasterCanvas::Clear(Colour background) {
  background_ = background;
  Fill(Picture(), packing_(background));
  Touch();
}

void RasterCanvas::Line(Point from, Point to, const Pen& pen) {
  const Box box{-kMargin, -kMargin, size_.width + kMargin, size_.height + kMargin};
  const auto visible = Clip({from, to}, box);
  if (!visible) return;
  if (pen.dotted) {
    DottedLine(visible->from, visible->to, pen);
  } else {
    PaintLine(Picture(), visible->from, visible->to, pen.width * density_, InkOf(pen));
  }
  Touch();
}

void RasterCanvas::Circle(const CircleShape& circle, const Pen& pen) {
  if (pen.dotted) {
    DottedArc(circle, pen);
  } else {
    PaintRing(Picture(), circle, pen.width * density_, InkOf(pen));
  }
  Touch();
}

void RasterCanvas::Dots(std::span<const Point> places, const Pen& pen) {
  FillSquares(Picture(), places, DotSide(pen.width), packing_(pen.colour));
  Touch();
}

void RasterCanvas::Text(Point topLeft, const std::string& text, Colour colour) {
  // What lies beyond an edge is not even looked up: a body far away leaves hundreds of labels
  // there. No letter is wider than two, no line higher than two of the font's sizes.
  const double twoSizes = 2.0 * FontPixels(fontPoints_, density_) + 2.0;
  const double widest = twoSizes * static_cast<double>(text.size());
  if (!(topLeft.x < size_.width && topLeft.y < size_.height)) return;
  if (!(topLeft.x > -widest && topLeft.y > -twoSizes)) return;
  Tile& tile = tiles_.Of(text, colour);
  Darken(Picture(), {tile.pixels.data(), tile.width, tile.height, tile.width},
         Rounded(topLeft.x) + tile.left, Rounded(topLeft.y));
  Touch();
}

// A line in the background colour erases. Crisp, with its square ends, it covers every pixel that a
// smooth line a pixel or more thinner has touched at the same place.
Ink RasterCanvas::InkOf(const Pen& pen) const {
  return {packing_(pen.colour), pen.colour != background_};
}

void RasterCanvas::DottedLine(Point from, Point to, const Pen& pen) {
  const Point way{to.x - from.x, to.y - from.y};
  const double pitches = std::hypot(way.x, way.y) / DotPitch(pen);
  for (int i = 0; i <= pitches; ++i) {
    const double part = pitches > 0.0 ? i / pitches : 0.0;
    PaintDisc(Picture(), {from.x + part * way.x, from.y + part * way.y}, DotRadius(pen),
              InkOf(pen));
  }
}

// The pitch is stretched a little to go into the circle a whole number of times. One dot lies on
// the touch point, so the row is the same on both sides of it.
void RasterCanvas::DottedArc(const CircleShape& circle, const Pen& pen) {
  // Beyond this nothing on a canvas tells the circle from its tangent.
  constexpr double kLargest = 1e300;
  if (circle.radius > kLargest) {
    DottedArc({circle.touch, circle.towardCentre, kLargest}, pen);
    return;
  }
  const Point middle{(size_.width - 1) / 2.0, (size_.height - 1) / 2.0};
  const VisibleArc arc = ArcInDisc(circle, middle, std::hypot(middle.x, middle.y) + kMargin);
  if (arc.end < arc.begin) return;
  constexpr double kTurn = 2.0 * std::numbers::pi;
  const double around = std::max(1.0, std::round(kTurn * circle.radius / DotPitch(pen)));
  const double pitch = kTurn / around;
  const double first = std::ceil(arc.begin / pitch);
  const int count = static_cast<int>(std::min(std::floor(arc.end / pitch) - first + 1.0, around));
  for (int i = 0; i < count; ++i) {
    PaintDisc(Picture(), PointOfArc(circle, (first + i) * pitch), DotRadius(pen), InkOf(pen));
  }
}

void RasterCanvas::ApplyFont() {
  tiles_.SetFont({fontName_, FontPixels(fontPoints_, density_)});
}

void RasterCanvas::Touch() {
  if (reported_) return;
  reported_ = true;
  if (changed_) changed_();
}

}  // namespace toolkit::raster
