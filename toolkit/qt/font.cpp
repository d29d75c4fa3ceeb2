#include "toolkit/qt/font.h"

#include <QString>

#include <algorithm>

namespace toolkit::qt {

QFont FontOf(const std::string& name, float points, double ratio) {
  constexpr double kPixelsPerPoint = 96.0 / 72.0;
  QFont font(QString::fromStdString(name));
  font.setStyleHint(QFont::Serif);
  font.setPixelSize(std::max(1, qRound(static_cast<double>(points) * kPixelsPerPoint * ratio)));
  return font;
}

}  // namespace toolkit::qt
