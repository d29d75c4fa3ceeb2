#include "toolkit/raster/text_tiles.h"

namespace toolkit::raster {
namespace {

// More than the 417 labels of the longest run. A label takes some 9 kilobytes at ratio 1.
constexpr std::size_t kMostTiles = 512;

}  // namespace

void TextTiles::SetFont(const Font& font) {
  if (font == font_) return;
  font_ = font;
  tiles_.clear();
}

Tile& TextTiles::Of(const std::string& text, Colour colour) {
  if (!(colour == colour_) || tiles_.size() >= kMostTiles) tiles_.clear();
  colour_ = colour;
  const auto found = tiles_.find(text);
  if (found != tiles_.end()) return found->second;
  return tiles_.emplace(text, source_.Draw(text, font_, colour_)).first->second;
}

}  // namespace toolkit::raster
