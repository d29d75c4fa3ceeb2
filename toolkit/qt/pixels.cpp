#include "toolkit/qt/pixels.h"

#include <QImage>

#include <algorithm>
#include <cstdint>

namespace toolkit::qt {
namespace {

QRgb* Row(QImage& picture, int y) {
  return reinterpret_cast<QRgb*>(picture.scanLine(y));
}

// What `from` + 0 ... `from` + `count` - 1 has in common with 0 ... `limit` - 1.
struct Overlap {
  int begin, end;
  Overlap(int from, int count, int limit)
      : begin(std::max(from, 0)), end(std::min(from + count, limit)) {}
};

}  // namespace

void FillSquares(QImage& picture, std::span<const Point> places, int side, QRgb colour) {
  const int width = picture.width();
  const int height = picture.height();
  auto* const bits = reinterpret_cast<QRgb*>(picture.bits());
  const std::ptrdiff_t stride = picture.bytesPerLine() / static_cast<int>(sizeof(QRgb));
  // Moved so that every square that shows has positive coordinates: cutting off the fraction then
  // rounds downward, and numbers too large for an int are sorted out before.
  const double shift = side - (side - 1) / 2.0 + 0.5;
  // Alone, because a path has thousands of single pixels.
  if (side == 1) {
    for (const Point& place : places) {
      const double x = place.x + shift;
      const double y = place.y + shift;
      if (x >= 1.0 && y >= 1.0 && x < width + 1 && y < height + 1) {
        bits[(static_cast<int>(y) - 1) * stride + static_cast<int>(x) - 1] = colour;
      }
    }
    return;
  }
  for (const Point& place : places) {
    const double x = place.x + shift;
    const double y = place.y + shift;
    if (!(x >= 0.0 && x < width + side && y >= 0.0 && y < height + side)) continue;
    const int left = static_cast<int>(x) - side;
    const int top = static_cast<int>(y) - side;
    const Overlap columns(left, side, width);
    const Overlap rows(top, side, height);
    for (int row = rows.begin; row < rows.end; ++row) {
      for (int column = columns.begin; column < columns.end; ++column) {
        bits[row * stride + column] = colour;
      }
    }
  }
}

void Darken(QImage& picture, const QImage& tile, int left, int top) {
  const Overlap columns(left, tile.width(), picture.width());
  const Overlap rows(top, tile.height(), picture.height());
  const int bytes = (columns.end - columns.begin) * static_cast<int>(sizeof(QRgb));
  for (int y = rows.begin; y < rows.end; ++y) {
    auto* const under = reinterpret_cast<std::uint8_t*>(Row(picture, y) + columns.begin);
    const auto* const over = tile.constScanLine(y - top) +
                             static_cast<std::ptrdiff_t>(columns.begin - left) * sizeof(QRgb);
    for (int i = 0; i < bytes; ++i) under[i] = std::min(under[i], over[i]);
  }
}

}  // namespace toolkit::qt
