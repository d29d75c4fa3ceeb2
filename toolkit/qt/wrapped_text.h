#pragma once

#include <QString>

class QPainter;
class QRect;

namespace toolkit::qt {

// Draws the text with the painter's font and pen, wrapped at blanks to the width of the box, from
// its left edge, and from its top or in the middle of its height. Lines that would not fit move
// closer together: the boxes are those of a font whose two lines need a little less room.
void DrawWrapped(QPainter& painter, const QRect& box, const QString& text, bool centred);

}  // namespace toolkit::qt
