#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "toolkit/raster/pixels.h"

namespace toolkit::raster {

// The letters of a canvas: the name of a typeface and its size in pixels.
struct Font {
  std::string name;
  int pixels;
  bool operator==(const Font&) const = default;
};

// A text drawn once on white, as small as may be, packed like the picture that it is laid on.
struct Tile {
  int width = 0;
  int height = 0;
  int left = 0;  // where it begins, from the text's own left edge: a letter may reach beyond it
  std::vector<std::uint32_t> pixels;
};

// What the rasteriser asks a backend for: letters are the one thing that it does not draw itself.
class TileSource {
 public:
  virtual ~TileSource() = default;
  // The text, UTF-8, of one line, with its top edge at the tile's.
  virtual Tile Draw(const std::string& text, const Font& font, Colour colour) = 0;
};

// The tiles of a canvas, kept: a run prints its labels anew at every step; laying out letters each
// time would cost more than the rest of the step.
class TextTiles {
 public:
  explicit TextTiles(TileSource& source) : source_(source) {}

  // Every later tile is in this font; those of another one are dropped.
  void SetFont(const Font& font);

  // Valid until the next call. Another colour drops the tiles of the last: a sketch has one.
  Tile& Of(const std::string& text, Colour colour);

 private:
  TileSource& source_;
  Font font_{};
  Colour colour_{};
  std::unordered_map<std::string, Tile> tiles_;
};

}  // namespace toolkit::raster
