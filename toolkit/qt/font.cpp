#include "toolkit/qt/font.h"

#include <QString>

#include <algorithm>

namespace toolkit::qt {

QFont FontOf(const std::string& name, float points, double scale) {
  constexpr double kPixelsPerPoint = 96.0 / 72.0;
  const double pixels = static_cast<double>(points) * kPixelsPerPoint * scale;
  QFont font(QString::fromStdString(name));
  font.setStyleHint(QFont::Serif);
  // Letters that shrink with their boxes must not shrink less than these.
  font.setPixelSize(std::max(1, scale < 1.0 ? static_cast<int>(pixels) : qRound(pixels)));
  return font;
}

}  // namespace toolkit::qt
