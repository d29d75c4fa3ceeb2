#include "toolkit/qt/letters.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include <algorithm>

#include "toolkit/qt/font.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

raster::Tile Letters::Draw(const std::string& text, const raster::Font& font, Colour colour) {
  QFont plain = FontOf(font.name, font.pixels);
  // Coloured fringes would not survive being laid over another text.
  plain.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  const QString line = Text(text);
  const QFontMetrics metrics(plain);
  const QRect ink = metrics.boundingRect(line);
  const int left = std::min(ink.left(), 0) - 1;
  const int right = std::max(ink.right(), metrics.horizontalAdvance(line)) + 2;
  raster::Tile tile{right - left, metrics.height(), left, {}};
  tile.pixels.resize(static_cast<std::size_t>(tile.width) * tile.height);
  QImage image(reinterpret_cast<uchar*>(tile.pixels.data()), tile.width, tile.height,
               QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setFont(plain);
  painter.setPen(QColor(colour.red, colour.green, colour.blue));
  painter.drawText(-left, metrics.ascent(), line);
  return tile;
}

}  // namespace toolkit::qt
