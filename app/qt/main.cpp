#include <QApplication>

#include "app/firststep.h"
#include "toolkit/qt/desktop.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  toolkit::qt::QtDesktop desktop(application);
  const auto window = app::Main(desktop);
  return desktop.Run();
}
