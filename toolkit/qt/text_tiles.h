#pragma once

#include <QFont>
#include <QImage>

#include <string>
#include <unordered_map>

#include "toolkit/canvas.h"

namespace toolkit::qt {

// Texts drawn once, each on a white tile of its own, and kept. A run prints its labels anew at
// every step; laying out glyphs each time would cost more than the rest of the step.
class TextTiles {
 public:
  struct Tile {
    QImage image;
    int left;  // where the tile begins, from the text's own left edge: a glyph may reach beyond it
  };

  // Every later tile is in this font; those of another one are dropped.
  void SetFont(const QFont& font);

  // Valid until the next call. Another colour drops the tiles of the last: a sketch has one.
  const Tile& Of(const std::string& text, Colour colour);

 private:
  Tile Render(const std::string& text) const;

  QFont font_;
  Colour colour_{};
  std::unordered_map<std::string, Tile> tiles_;
};

}  // namespace toolkit::qt
