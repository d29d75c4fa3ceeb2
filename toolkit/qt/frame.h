#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace toolkit::qt {

// Paints the inner edge of `box`, in logical pixels, as thick on every side: as many whole device
// pixels as a logical one has, at least one. The box may lie between device pixels, as it does at a
// fractional ratio; its corners are then rounded as Qt rounds a widget's own.
void PaintFrame(QPainter& painter, const QRect& box, const QColor& colour);

}  // namespace toolkit::qt
