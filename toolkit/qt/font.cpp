#include "toolkit/qt/font.h"

#include "toolkit/qt/text.h"

namespace toolkit::qt {

QFont FontOf(const std::string& name, int pixels) {
  QFont font(Text(name));
  font.setStyleHint(QFont::Serif);
  font.setPixelSize(pixels);
  return font;
}

}  // namespace toolkit::qt
