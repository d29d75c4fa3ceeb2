#include "toolkit/qt/text_tiles.h"

#include <QFontMetrics>
#include <QPainter>
#include <QString>

#include "toolkit/qt/pixels.h"

namespace toolkit::qt {
namespace {

// More than the 417 labels of the longest run. A label takes some 9 kilobytes at ratio 1.
constexpr std::size_t kMostTiles = 512;

}  // namespace

void TextTiles::SetFont(const QFont& font) {
  QFont plain = font;
  // Coloured fringes would not survive being laid over another text.
  plain.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  if (plain == font_) return;
  font_ = plain;
  tiles_.clear();
}

const TextTiles::Tile& TextTiles::Of(const std::string& text, Colour colour) {
  if (!(colour == colour_) || tiles_.size() >= kMostTiles) tiles_.clear();
  colour_ = colour;
  const auto found = tiles_.find(text);
  if (found != tiles_.end()) return found->second;
  return tiles_.emplace(text, Render(text)).first->second;
}

TextTiles::Tile TextTiles::Render(const std::string& text) const {
  const QString line = QString::fromStdString(text);
  const QFontMetrics metrics(font_);
  const QRect ink = metrics.boundingRect(line);
  const int left = std::min(ink.left(), 0) - 1;
  const int right = std::max(ink.right(), metrics.horizontalAdvance(line)) + 2;
  QImage image(right - left, metrics.height(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setFont(font_);
  painter.setPen(QColor(Rgb(colour_)));
  painter.drawText(-left, metrics.ascent(), line);
  return {image, left};
}

}  // namespace toolkit::qt
