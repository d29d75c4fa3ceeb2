#include "toolkit/qt/desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>

#include "toolkit/qt/accessibility.h"
#include "toolkit/qt/screen.h"
#include "toolkit/qt/style.h"
#include "toolkit/qt/text.h"
#include "toolkit/qt/window_mirror.h"

namespace toolkit::qt {

QtDesktop::QtDesktop(QApplication& application) {
  ApplyStyle(1.0);
  // The layout is the same in every language.
  QApplication::setLayoutDirection(Qt::LeftToRight);
  // A message box may close before the window is shown, which is not the end.
  QApplication::setQuitOnLastWindowClosed(false);
  InstallAccessibleInterfaces();
  WatchScreens(application);
}

QtDesktop::~QtDesktop() = default;

// A panel that appears or goes is no reason to change a picture that a class is looking at; another
// size of the screen, or another screen, is. What the panels leave free of it is known a little
// later.
void QtDesktop::WatchScreens(QApplication& application) {
  const auto cover = [this] {
    if (mirror_ != nullptr) mirror_->Cover(FreePart());
  };
  const auto settle = [this, cover] {
    if (mirror_ != nullptr && mirror_->Settling()) cover();
  };
  const auto watch = [this, cover, settle](QScreen* screen) {
    QObject::connect(screen, &QScreen::geometryChanged, &watcher_, cover);
    QObject::connect(screen, &QScreen::availableGeometryChanged, &watcher_, settle);
  };
  for (QScreen* screen : QApplication::screens()) watch(screen);
  QObject::connect(&application, &QApplication::screenAdded, &watcher_, watch);
  QObject::connect(&application, &QApplication::primaryScreenChanged, &watcher_, cover);
}

int QtDesktop::Run() {
  return ended_ ? 0 : QApplication::exec();
}

float QtDesktop::ScreenWidth() const {
  return static_cast<float>(view_.screen.width) * kTwipsPerPixel;
}

float QtDesktop::ScreenHeight() const {
  return static_cast<float>(view_.screen.height) * kTwipsPerPixel;
}

void QtDesktop::Create(Window& window) {
  QApplication::setApplicationDisplayName(Text(window.Caption));
  const QRect free = FreePart();
  view_ = ViewOf(RoomIn(free), kTitleHeight, window.Surroundings);
  mirror_ = std::make_unique<WindowMirror>(window, free, view_);
}

void QtDesktop::Destroy(Window&) {
  mirror_.reset();
}

void QtDesktop::ShowMessage(const std::string& text) {
  if (ended_) return;
  QMessageBox box(mirror_ != nullptr && mirror_->isVisible() ? mirror_.get() : nullptr);
  box.setWindowTitle(QApplication::applicationDisplayName());
  box.setTextFormat(Qt::PlainText);
  box.setText(Text(text));
  box.exec();
}

// May come from inside a handler and from inside a message box: every event loop that is running
// ends, and none is entered again.
void QtDesktop::End() {
  ended_ = true;
  if (mirror_ != nullptr) mirror_->Close();
  QApplication::exit(0);
}

}  // namespace toolkit::qt
