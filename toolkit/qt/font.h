#pragma once

#include <QFont>

#include <string>

namespace toolkit::qt {

// The font of this name, or a serif in its place, in so many logical pixels (see FontPixels).
QFont FontOf(const std::string& name, int pixels);

}  // namespace toolkit::qt
