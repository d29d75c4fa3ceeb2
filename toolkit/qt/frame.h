#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace toolkit::qt {

// How many device pixels a line has that is to be `pixels` of them thick: whole ones, at least one.
int FrameSide(double pixels);

// Paints the inner edge of `box`, in logical pixels, `width` of them thick on every side. The box
// may lie between device pixels, as it does at a fractional ratio; its corners are then rounded as
// Qt rounds a widget's own.
void PaintFrame(QPainter& painter, const QRect& box, const QColor& colour, double width);

}  // namespace toolkit::qt
