#pragma once

#include "toolkit/raster/text_tiles.h"

namespace toolkit::headless {

// Letters that look the same on every machine: each byte of a text is a box as high as the font and
// half as wide, hatched by the byte's bits. For pictures that are compared pixel by pixel.
class StandInLetters : public raster::TileSource {
 public:
  explicit StandInLetters(raster::Packing packing) : packing_(packing) {}

  raster::Tile Draw(const std::string& text, const raster::Font& font, Colour colour) override;

 private:
  raster::Packing packing_;
};

}  // namespace toolkit::headless
