#pragma once

#include <memory>

#include "toolkit/window.h"

class QApplication;

namespace toolkit::qt {

class WindowMirror;

// The desktop as Qt's application sees it, showing one window. It must outlive that window.
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
  double zoom_;  // logical pixels to one of the program's
  std::unique_ptr<WindowMirror> mirror_;
  bool ended_ = false;
};

}  // namespace toolkit::qt
