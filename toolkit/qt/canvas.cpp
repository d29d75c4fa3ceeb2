#include "toolkit/qt/canvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#if defined(__GNUC__) && defined(__x86_64__)
#include <immintrin.h>
#endif

#include "toolkit/arc.h"
#include "toolkit/clip.h"
#include "toolkit/qt/font.h"
#include "toolkit/qt/pixels.h"
#include "toolkit/qt/shapes.h"

namespace toolkit::qt {
namespace {

// How far beyond the edges lines are kept, in pixels: more than half of any pen's width. It is the
// same for all pens, so that an eraser follows exactly the line that it erases.
constexpr double kMargin = 64.0;

// Qt fills images with AVX instructions and leaves the upper halves of the registers in use. Until
// they are released, each SSE instruction waits for the one before, and the arithmetic of a picture
// takes up to three times as long.
#if defined(__GNUC__) && defined(__x86_64__)
__attribute__((target("avx"))) void ReleaseAvx() {
  _mm256_zeroupper();
}
void ReleaseUpperHalves() {
  if (__builtin_cpu_supports("avx")) ReleaseAvx();
}
#else
void ReleaseUpperHalves() {
}
#endif

}  // namespace

QtCanvas::QtCanvas(std::function<void()> changed) : changed_(std::move(changed)) {
  ApplyFont();
  Resize(QSize(1, 1), 1.0);
}

void QtCanvas::Resize(QSize size, double ratio, double zoom) {
  if (size == size_ && ratio == ratio_ && zoom == zoom_) return;
  const QSize pixels(std::max(1, qRound(size.width() * ratio)),
                     std::max(1, qRound(size.height() * ratio)));
  if (size == size_) {
    image_ = image_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                 .convertToFormat(QImage::Format_RGB32);
  } else {
    image_ = QImage(pixels, QImage::Format_RGB32);
    image_.fill(Rgb(background_));
  }
  size_ = size;
  ratio_ = ratio;
  zoom_ = zoom;
  ApplyFont();
  Touch();
}

void QtCanvas::SetFont(const std::string& name, float points) {
  fontName_ = name;
  fontPoints_ = points;
  ApplyFont();
}

const QImage& QtCanvas::Look() {
  reported_ = false;
  return image_;
}

int QtCanvas::DotSide(int penWidth) const {
  return std::max(1, qRound(penWidth * Density()));
}

void QtCanvas::Clear(Colour background) {
  background_ = background;
  image_.fill(Rgb(background));
  ReleaseUpperHalves();
  Touch();
}

void QtCanvas::Line(Point from, Point to, const Pen& pen) {
  const Box box{-kMargin, -kMargin, image_.width() + kMargin, image_.height() + kMargin};
  const auto visible = Clip({from, to}, box);
  if (!visible) return;
  if (pen.dotted) {
    DottedLine(visible->from, visible->to, pen);
  } else {
    PaintLine(image_, visible->from, visible->to, pen.width * Density(), InkOf(pen));
  }
  Touch();
}

void QtCanvas::Circle(const CircleShape& circle, const Pen& pen) {
  if (pen.dotted) {
    DottedArc(circle, pen);
  } else {
    PaintRing(image_, circle, pen.width * Density(), InkOf(pen));
  }
  Touch();
}

void QtCanvas::Dots(std::span<const Point> places, const Pen& pen) {
  FillSquares(image_, places, DotSide(pen.width), Rgb(pen.colour));
  Touch();
}

void QtCanvas::Text(Point topLeft, const std::string& text, Colour colour) {
  // What lies beyond an edge is not even looked up: a body far away leaves hundreds of labels
  // there. No glyph is wider than two, no line higher than two of the font's sizes.
  const double twoSizes = 2.0 * fontPoints_ * (96.0 / 72.0) * Density();
  const double widest = twoSizes * static_cast<double>(text.size());
  if (!(topLeft.x < image_.width() && topLeft.y < image_.height())) return;
  if (!(topLeft.x > -widest && topLeft.y > -twoSizes)) return;
  const TextTiles::Tile& tile = tiles_.Of(text, colour);
  Darken(image_, tile.image, qRound(topLeft.x) + tile.left, qRound(topLeft.y));
  Touch();
}

// A line in the background colour erases. Crisp, with its square ends, it covers every pixel that a
// smooth line a pixel or more thinner has touched at the same place.
Ink QtCanvas::InkOf(const Pen& pen) const {
  return {Rgb(pen.colour), pen.colour != background_};
}

void QtCanvas::DottedLine(Point from, Point to, const Pen& pen) {
  const Point way{to.x - from.x, to.y - from.y};
  const double pitches = std::hypot(way.x, way.y) / DotPitch(pen);
  for (int i = 0; i <= pitches; ++i) {
    const double part = pitches > 0.0 ? i / pitches : 0.0;
    PaintDisc(image_, {from.x + part * way.x, from.y + part * way.y}, DotRadius(pen), InkOf(pen));
  }
}

// The pitch is stretched a little to go into the circle a whole number of times. One dot lies on
// the touch point, so the row is the same on both sides of it.
void QtCanvas::DottedArc(const CircleShape& circle, const Pen& pen) {
  const Point middle{(image_.width() - 1) / 2.0, (image_.height() - 1) / 2.0};
  const VisibleArc arc = ArcInDisc(circle, middle, std::hypot(middle.x, middle.y) + kMargin);
  if (arc.end < arc.begin) return;
  // Beyond this nothing on a canvas tells the circle from its tangent.
  constexpr double kLargest = 1e300;
  if (circle.radius > kLargest) {
    DottedArc({circle.touch, circle.towardCentre, kLargest}, pen);
    return;
  }
  constexpr double kTurn = 2.0 * std::numbers::pi;
  const double around = std::max(1.0, std::round(kTurn * circle.radius / DotPitch(pen)));
  const double pitch = kTurn / around;
  const double first = std::ceil(arc.begin / pitch);
  const int count = static_cast<int>(std::min(std::floor(arc.end / pitch) - first + 1.0, around));
  for (int i = 0; i < count; ++i) {
    PaintDisc(image_, PointOfArc(circle, (first + i) * pitch), DotRadius(pen), InkOf(pen));
  }
}

void QtCanvas::ApplyFont() {
  tiles_.SetFont(FontOf(fontName_, fontPoints_, Density()));
}

void QtCanvas::Touch() {
  if (reported_) return;
  reported_ = true;
  if (changed_) changed_();
}

}  // namespace toolkit::qt
