#pragma once

#include "toolkit/raster/text_tiles.h"

namespace toolkit::qt {

// How Qt packs a pixel in QImage::Format_RGB32.
inline constexpr raster::Packing kPacking{16, 8, 0};

// Draws the tiles of texts with Qt's fonts.
class Letters : public raster::TileSource {
 public:
  raster::Tile Draw(const std::string& text, const raster::Font& font, Colour colour) override;
};

}  // namespace toolkit::qt
