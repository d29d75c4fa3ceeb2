#include <QApplication>

#include "app/firststep.h"
#include "toolkit/qt/desktop.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  // By this the desktop finds the window's icon, which is installed under the same name.
  QApplication::setDesktopFileName("org.example.FirstStep");
  toolkit::qt::QtDesktop desktop(application);
  const auto window = app::Main(desktop);
  return desktop.Run();
}
