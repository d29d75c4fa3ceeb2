#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "toolkit/canvas.h"

namespace toolkit::raster {

// How a colour becomes a 32-bit pixel: by how many bits each component is shifted to the left. The
// shifts are 0, 8 and 16 in any order; the top byte is full, which makes a pixel opaque.
struct Packing {
  int red, green, blue;

  std::uint32_t operator()(Colour colour) const {
    return 0xff000000U | (std::uint32_t{colour.red} << red) |
           (std::uint32_t{colour.green} << green) | (std::uint32_t{colour.blue} << blue);
  }
};

// A picture's memory: `height` rows of `width` pixels, each row `stride` pixels behind the last.
struct Pixels {
  std::uint32_t* bits;
  int width, height;
  std::ptrdiff_t stride;

  std::uint32_t* Row(int y) const { return bits + y * stride; }
};

// Makes the whole picture of one colour.
void Fill(const Pixels& picture, std::uint32_t colour);

// The two functions below cut at the picture's edges; coordinates are those of a Canvas.

// Fills, around each place, the square of `side` whole pixels (at least 1) whose middle is nearest.
void FillSquares(const Pixels& picture, std::span<const Point> places, int side,
                 std::uint32_t colour);

// Takes each component's smaller value of the picture and the tile, whose top-left pixel comes to
// (left, top). Doing it again changes nothing.
void Darken(const Pixels& picture, const Pixels& tile, int left, int top);

// The picture `from`, stretched or shrunk to the size of `to`, smoothly.
void Stretch(const Pixels& from, const Pixels& to);

}  // namespace toolkit::raster
