#include "toolkit/raster/pixels.h"

#include <algorithm>
#include <cstring>

namespace toolkit::raster {
namespace {

// What `from` + 0 ... `from` + `count` - 1 has in common with 0 ... `limit` - 1.
struct Overlap {
  int begin, end;
  Overlap(int from, int count, int limit)
      : begin(std::max(from, 0)), end(std::min(from + count, limit)) {}
};

// Two neighbours among `limit` pixels and how much of the second there is, in 256ths: where pixel
// `at` of `size` falls when both rows are as long.
struct Blend {
  int first, second;
  unsigned share;
  Blend(int at, int size, int limit) {
    const double place =
        std::clamp((at + 0.5) * limit / size - 0.5, 0.0, static_cast<double>(limit - 1));
    first = static_cast<int>(place);
    second = std::min(first + 1, limit - 1);
    share = static_cast<unsigned>((place - first) * 256.0);
  }
  unsigned operator()(unsigned a, unsigned b) const {
    return (a * (256U - share) + b * share) >> 8U;
  }
};

}  // namespace

// Four equal bytes, as in white, are filled by the C library, which is several times as fast and
// takes a tenth of a scene's time.
void Fill(const Pixels& picture, std::uint32_t colour) {
  const std::uint32_t byte = colour & 0xffU;
  for (int y = 0; y < picture.height; ++y) {
    std::uint32_t* const row = picture.Row(y);
    if (colour == byte * 0x01010101U) {
      std::memset(row, static_cast<int>(byte), sizeof(*row) * picture.width);
    } else {
      std::fill(row, row + picture.width, colour);
    }
  }
}

void FillSquares(const Pixels& picture, std::span<const Point> places, int side,
                 std::uint32_t colour) {
  // Moved so that every square that shows has positive coordinates: cutting off the fraction then
  // rounds downward, and numbers too large for an int are sorted out before.
  const double shift = side - (side - 1) / 2.0 + 0.5;
  // The fast way for dots of one pixel, of which a path has thousands.
  if (side == 1) {
    for (const Point& place : places) {
      const double x = place.x + shift;
      const double y = place.y + shift;
      if (x >= 1.0 && y >= 1.0 && x < picture.width + 1 && y < picture.height + 1) {
        picture.Row(static_cast<int>(y) - 1)[static_cast<int>(x) - 1] = colour;
      }
    }
    return;
  }
  for (const Point& place : places) {
    const double x = place.x + shift;
    const double y = place.y + shift;
    if (!(x >= 0.0 && x < picture.width + side && y >= 0.0 && y < picture.height + side)) continue;
    const Overlap columns(static_cast<int>(x) - side, side, picture.width);
    const Overlap rows(static_cast<int>(y) - side, side, picture.height);
    for (int row = rows.begin; row < rows.end; ++row) {
      for (int column = columns.begin; column < columns.end; ++column) {
        picture.Row(row)[column] = colour;
      }
    }
  }
}

void Darken(const Pixels& picture, const Pixels& tile, int left, int top) {
  const Overlap columns(left, tile.width, picture.width);
  const Overlap rows(top, tile.height, picture.height);
  const int bytes = (columns.end - columns.begin) * static_cast<int>(sizeof(std::uint32_t));
  for (int y = rows.begin; y < rows.end; ++y) {
    auto* const under = reinterpret_cast<std::uint8_t*>(picture.Row(y) + columns.begin);
    const auto* const over =
        reinterpret_cast<const std::uint8_t*>(tile.Row(y - top) + (columns.begin - left));
    for (int i = 0; i < bytes; ++i) under[i] = std::min(under[i], over[i]);
  }
}

void Stretch(const Pixels& from, const Pixels& to) {
  for (int y = 0; y < to.height; ++y) {
    const Blend rows(y, to.height, from.height);
    for (int x = 0; x < to.width; ++x) {
      const Blend columns(x, to.width, from.width);
      std::uint32_t mixed = 0;
      for (unsigned shift = 0; shift < 32; shift += 8) {
        const auto part = [&](int row, int column) {
          return from.Row(row)[column] >> shift & 0xffU;
        };
        const auto across = [&](int row) {
          return columns(part(row, columns.first), part(row, columns.second));
        };
        mixed |= rows(across(rows.first), across(rows.second)) << shift;
      }
      to.Row(y)[x] = mixed;
    }
  }
}

}  // namespace toolkit::raster
