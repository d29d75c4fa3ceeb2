#include "toolkit/raster/shapes.h"

#include <algorithm>
#include <cmath>

namespace toolkit::raster {
namespace {

// Pixels from left to right - 1, top to bottom - 1.
struct Area {
  int left, top, right, bottom;
};

// `under` moved toward `over` by weight/256. The two outer components share one product.
std::uint32_t Mixed(std::uint32_t under, std::uint32_t over, unsigned weight) {
  constexpr unsigned kOuter = 0xff00ffU;
  constexpr unsigned kMiddle = 0x00ff00U;
  const unsigned rest = 256U - weight;
  const unsigned outer = ((under & kOuter) * rest + (over & kOuter) * weight) >> 8U;
  const unsigned middle = ((under & kMiddle) * rest + (over & kMiddle) * weight) >> 8U;
  return 0xff000000U | (outer & kOuter) | (middle & kMiddle);
}

// Inks a pixel whose centre lies so far outside a shape's outline, negative inside.
inline void Blend(std::uint32_t& pixel, const Ink& ink, double outside) {
  if (!ink.smooth) {
    if (outside <= 0.0) pixel = ink.colour;
    return;
  }
  // A pixel that is not cut by the outline needs no mixing. What is no number counts as outside.
  const double cover = 0.5 - outside;
  if (!(cover > 0.0)) return;
  if (cover >= 1.0) {
    pixel = ink.colour;
  } else {
    pixel = Mixed(pixel, ink.colour, static_cast<unsigned>(static_cast<int>(cover * 256.0)));
  }
}

// The whole numbers from 0 to limit - 1 that lie less than `reach` from `middle`. By cutting off
// fractions: rounding calls a function on processors of the first generation.
struct Run {
  Run(double middle, double reach, int limit)
      : begin(Held(middle - reach + 1.0, limit)), end(Held(middle + reach + 1.0, limit)) {}

  static int Held(double edge, int limit) {
    return static_cast<int>(std::min(std::max(edge, 0.0), static_cast<double>(limit)));
  }
  int begin, end;
};

// Paints one shape, given by its distance function: how far a point lies outside the outline,
// negative inside. Halves the area until it is a few pixels or lies all outside.
template <class Distance>
class Painter {
 public:
  Painter(const Pixels& picture, const Ink& ink, const Distance& distance)
      : ink_(ink),
        distance_(distance),
        picture_(picture),
        whole_{0, 0, picture.width, picture.height} {}

  void Paint() { Paint(whole_); }

  void Paint(Area area) {
    constexpr int kLeaf = 4;
    constexpr double kHalfDiagonal = 0.7072;
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (width <= 0 || height <= 0) return;
    const Point middle{(area.left + area.right - 1) / 2.0, (area.top + area.bottom - 1) / 2.0};
    // Written so that a distance that is not a number counts as outside.
    if (!(distance_(middle) < 0.5 + kHalfDiagonal * std::max(width, height))) return;
    if (std::max(width, height) <= kLeaf) {
      PaintPixels(area);
    } else if (width > height) {
      const int half = area.left + width / 2;
      Paint({area.left, area.top, half, area.bottom});
      Paint({half, area.top, area.right, area.bottom});
    } else {
      const int half = area.top + height / 2;
      Paint({area.left, area.top, area.right, half});
      Paint({area.left, half, area.right, area.bottom});
    }
  }

  // The pixels between these lines, those on the lines included.
  Area Between(double left, double top, double right, double bottom) const {
    const auto held = [](double edge, int limit) {
      return static_cast<int>(std::clamp(edge + 1.0, 0.0, static_cast<double>(limit)));
    };
    return {held(left - 1.0, whole_.right), held(top - 1.0, whole_.bottom),
            held(right, whole_.right), held(bottom, whole_.bottom)};
  }

  void PaintPixels(const Area& area) {
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x) {
        const double outside = distance_({static_cast<double>(x), static_cast<double>(y)});
        Blend(picture_.Row(y)[x], ink_, outside);
      }
    }
  }

 private:
  const Ink& ink_;
  const Distance& distance_;
  Pixels picture_;
  Area whole_;
};

}  // namespace

// Walks along the axis that the line follows more closely, here called u, and paints the few pixels
// across it, along v. A picture redrawn under the user's hand has a hundred lines; this is where
// its time goes.
void PaintLine(const Pixels& picture, Point from, Point to, double width, const Ink& ink) {
  const bool steep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
  const auto turned = [steep](Point p) { return steep ? Point{p.y, p.x} : p; };
  const Point a = turned(from);
  const Point b = turned(to);
  const double length = std::hypot(b.x - a.x, b.y - a.y);
  const double du = length > 0.0 ? (b.x - a.x) / length : 1.0;
  const double dv = length > 0.0 ? (b.y - a.y) / length : 0.0;
  const Point middle{(a.x + b.x) / 2.0, (a.y + b.y) / 2.0};

  const std::ptrdiff_t alongU = steep ? picture.stride : 1;
  const std::ptrdiff_t alongV = steep ? 1 : picture.stride;
  const Run us(middle.x, (length * std::abs(du) + 1.5 * width + 1.0) / 2.0,
               steep ? picture.height : picture.width);
  const double aside = (width + 1.0) / 2.0 / std::abs(du);
  const int limitV = steep ? picture.width : picture.height;
  // Farther in than this no pixel across the line is touched by its ends.
  const double inner = length * std::abs(du) / 2.0 - width - 2.0;
  for (int u = us.begin; u < us.end; ++u) {
    const double offU = u - middle.x;
    const bool nearEnd = std::abs(offU) > inner;
    const Run vs(middle.y + offU * dv / du, aside, limitV);
    for (int v = vs.begin; v < vs.end; ++v) {
      const double offV = v - middle.y;
      double outside = std::abs(offU * dv - offV * du);
      if (nearEnd) outside = std::max(outside, std::abs(offU * du + offV * dv) - length / 2.0);
      Blend(picture.bits[u * alongU + v * alongV], ink, outside - width / 2.0);
    }
  }
}

// With m leading from the touch point to the place, m_n its part toward the centre and d the
// place's distance from the centre, d - r = (|m|^2 - 2*r*m_n) / (d + r): no difference of two huge
// numbers. All divided by r, which may be as large as its square would overflow.
void PaintRing(const Pixels& picture, const CircleShape& circle, double width, const Ink& ink) {
  constexpr double kPoint = 1e-6;  // a radius below it makes no difference, except for dividing
  const double r = std::max(circle.radius, kPoint);
  const auto distance = [&](Point place) {
    const double dx = place.x - circle.touch.x;
    const double dy = place.y - circle.touch.y;
    const double inward = dx * circle.towardCentre.x + dy * circle.towardCentre.y;
    const double along = dx * circle.towardCentre.y - dy * circle.towardCentre.x;
    const double a = along / r;
    const double n = inward / r;
    const double gap =
        (along * a + inward * (n - 2.0)) / (std::sqrt(a * a + (1.0 - n) * (1.0 - n)) + 1.0);
    return std::abs(gap) - width / 2.0;
  };
  Painter(picture, ink, distance).Paint();
}

void PaintDisc(const Pixels& picture, Point centre, double radius, const Ink& ink) {
  const auto distance = [&](Point place) {
    const double dx = place.x - centre.x;
    const double dy = place.y - centre.y;
    return std::sqrt(dx * dx + dy * dy) - radius;
  };
  Painter painter(picture, ink, distance);
  const double reach = radius + 0.5;
  painter.PaintPixels(
      painter.Between(centre.x - reach, centre.y - reach, centre.x + reach, centre.y + reach));
}

}  // namespace toolkit::raster
