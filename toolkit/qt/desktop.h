#pragma once

#include <QObject>

#include <memory>

#include "toolkit/window.h"

class QApplication;

namespace toolkit::qt {

class WindowMirror;

// The desktop as Qt's application sees it, showing one window, which covers the free part of the
// primary screen. It must outlive that window, and the application must outlive it.
class QtDesktop : public Desktop {
 public:
  // The application must exist, and be styled before any widget is made.
  explicit QtDesktop(QApplication& application);
  ~QtDesktop() override;

  // Hands the machine to the user until the program ends; its exit status. Returns at once when the
  // program has ended before.
  int Run();

  float ScreenWidth() const override;
  float ScreenHeight() const override;
  void Create(Window& window) override;
  void Destroy(Window& window) override;
  void ShowMessage(const std::string& text) override;
  void End() override;

 private:
  void WatchScreens(QApplication& application);

  View view_{1.0, {1024.0, 768.0}, {}};
  std::unique_ptr<WindowMirror> mirror_;
  bool ended_ = false;
  QObject watcher_;  // ends the connections to the screens with the desktop
};

}  // namespace toolkit::qt
