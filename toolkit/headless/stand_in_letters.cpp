#include "toolkit/headless/stand_in_letters.h"

#include <algorithm>

namespace toolkit::headless {

raster::Tile StandInLetters::Draw(const std::string& text, const raster::Font& font,
                                  Colour colour) {
  const int wide = std::max(1, font.pixels / 2);
  raster::Tile tile{static_cast<int>(text.size()) * wide, font.pixels, 0, {}};
  for (int y = 0; y < tile.height; ++y) {
    for (int x = 0; x < tile.width; ++x) {
      const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(x / wide)]);
      const bool ink = (byte >> ((x % wide + y) % 8) & 1) != 0;
      tile.pixels.push_back(packing_(ink ? colour : kWhite));
    }
  }
  return tile;
}

}  // namespace toolkit::headless
