#include "toolkit/qt/frame.h"

#include <QRegion>
#include <QTransform>

#include <algorithm>

namespace toolkit::qt {

void PaintFrame(QPainter& painter, const QRect& box, const QColor& colour) {
  const QTransform toDevice = painter.deviceTransform();
  const QRectF exact = toDevice.mapRect(QRectF(box));
  const QRect outer(exact.topLeft().toPoint(), exact.bottomRight().toPoint() - QPoint(1, 1));
  const int side = std::max(1, static_cast<int>(painter.device()->devicePixelRatioF()));
  painter.save();
  painter.setTransform(toDevice.inverted(), true);
  for (const QRect& edge : QRegion(outer) - outer.adjusted(side, side, -side, -side)) {
    painter.fillRect(edge, colour);
  }
  painter.restore();
}

}  // namespace toolkit::qt
