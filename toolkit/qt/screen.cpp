#include "toolkit/qt/screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace toolkit::qt {

QRect FreePart() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen != nullptr ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

}  // namespace toolkit::qt
