#include "toolkit/qt/icon.h"

#include <QPainter>
#include <QPainterPath>

namespace toolkit::qt {
namespace {

QPainterPath Arrow(QPointF from, QPointF to, QPointF barb, QPointF otherBarb) {
  QPainterPath arrow(from);
  arrow.lineTo(to);
  arrow.moveTo(barb);
  arrow.lineTo(to);
  arrow.lineTo(otherBarb);
  return arrow;
}

// A track with its circle of curvature at the crest, the velocity and the acceleration there, on a
// sheet of 128 by 128.
QPixmap Draw(int side) {
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / 128.0, side / 128.0);
  const QColor ink(1, 0, 66);
  const auto line = [](const QColor& colour, double width) {
    return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  };
  painter.setPen(line(ink, 2.0));
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(QRectF(4, 4, 120, 120), 20, 20);
  painter.setBrush(Qt::NoBrush);
  QPen dots = line(QColor(250, 0, 150), 4.5);
  dots.setDashPattern({0.01, 1.65});
  painter.setPen(dots);
  painter.drawEllipse(QPointF(47, 63.94), 25.94, 25.94);
  QPainterPath track(QPointF(11, 60.23));
  track.cubicTo(22.52, 47.69, 34.1, 38, 47, 38);
  track.cubicTo(64.37, 38, 79.35, 55.56, 95, 74);
  track.cubicTo(102.4, 82.69, 109.6, 91.19, 117, 97.74);
  painter.strokePath(track, line(ink, 5.5));
  const QPointF crest(47, 38);
  painter.strokePath(Arrow(crest, {47, 71}, {38, 62}, {56, 62}), line(QColor(5, 150, 255), 6.0));
  painter.strokePath(Arrow(crest, {111, 38}, {102, 29}, {102, 47}), line(Qt::red, 6.0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  painter.drawEllipse(crest, 6.5, 6.5);
  return pixmap;
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 24, 32, 48, 64, 128}) icon.addPixmap(Draw(side));
  return icon;
}

}  // namespace toolkit::qt
