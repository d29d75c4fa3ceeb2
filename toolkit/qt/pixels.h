#pragma once

#include <QRgb>

#include <span>

#include "toolkit/canvas.h"

class QImage;

namespace toolkit::qt {

// Work on a picture's own memory, for what the painter would draw too slowly or not exactly enough:
// a path of ten thousand dots is repainted at every step of the motion. All of it is cut at the
// picture's edges. Pictures are in QImage::Format_RGB32, coordinates as on a Canvas.

inline QRgb Rgb(Colour colour) {
  return qRgb(colour.red, colour.green, colour.blue);
}

// Fills, around each place, the square of `side` whole pixels (at least 1) whose middle is nearest.
void FillSquares(QImage& picture, std::span<const Point> places, int side, QRgb colour);

// Takes each channel's smaller value of the picture and the tile, whose top-left pixel comes to
// (left, top). Doing it again changes nothing.
void Darken(QImage& picture, const QImage& tile, int left, int top);

}  // namespace toolkit::qt
