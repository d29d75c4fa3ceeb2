#include "toolkit/qt/frame.h"

#include <QRegion>
#include <QTransform>

#include <algorithm>

namespace toolkit::qt {

int FrameSide(double pixels) {
  constexpr double kRounding = 1e-6;  // 1.5 times two thirds may come out below 1
  return std::max(1, static_cast<int>(pixels + kRounding));
}

void PaintFrame(QPainter& painter, const QRect& box, const QColor& colour, double width) {
  const QTransform toDevice = painter.deviceTransform();
  const QRectF exact = toDevice.mapRect(QRectF(box));
  const QRect outer(exact.topLeft().toPoint(), exact.bottomRight().toPoint() - QPoint(1, 1));
  const int side = FrameSide(width * painter.device()->devicePixelRatioF());
  painter.save();
  painter.setTransform(toDevice.inverted(), true);
  for (const QRect& edge : QRegion(outer) - outer.adjusted(side, side, -side, -side)) {
    painter.fillRect(edge, colour);
  }
  painter.restore();
}

}  // namespace toolkit::qt
