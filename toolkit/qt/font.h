#pragma once

#include <QFont>

#include <string>

namespace toolkit::qt {

// The font of this name and size in points at 96 dots per inch, `scale` times as large.
//
// Set in pixels, never in points: every length on the window is fixed at 96 dots per inch, and a
// desktop that claims another density would let the texts grow out of their boxes.
QFont FontOf(const std::string& name, float points, double scale = 1.0);

}  // namespace toolkit::qt
