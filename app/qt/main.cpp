#include <QApplication>

#include <cstdio>
#include <cstdlib>

#include "app/firststep.h"
#include "toolkit/qt/desktop.h"

namespace {

// While Qt looks for a display: what it says otherwise is of no use to a user, and where it finds
// none, it would abort.
void WithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::fputs("first explanation needs a graphical display, and there is none that it can open.\n",
             stderr);
  std::_Exit(1);
}

}  // namespace

int main(int, char** argv) {
  // The toolkit would take arguments of its own; the program takes none.
  int count = 1;
  const QtMessageHandler usual = qInstallMessageHandler(WithoutDisplay);
  QApplication application(count, argv);
  qInstallMessageHandler(usual);
  // By this the desktop finds the window's icon, which is installed under the same name.
  QApplication::setDesktopFileName("org.example.FirstStep");
  toolkit::qt::QtDesktop desktop(application);
  const auto window = app::Main(desktop);
  return desktop.Run();
}
