#pragma once

#include <QMainWindow>
#include <QTimer>

#include <memory>
#include <vector>

#include "toolkit/qt/twips.h"
#include "toolkit/window.h"

namespace toolkit::qt {

// The window on the screen, with its menu bar, its client area and everything in it.
class WindowMirror : public QMainWindow, public Mirror {
 public:
  WindowMirror(Window& window, const TwipScale& twips);
  ~WindowMirror() override;

  void Refresh() final;
  // Takes the window from the screen for good.
  void Close();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void FitFrame();

  Window& window_;
  TwipScale twips_;
  std::vector<std::unique_ptr<Mirror>> controls_, menus_, timers_;
  QRect asked_;      // the inner place that was asked for last
  QTimer settling_;  // runs while the frame may still be on its way
  bool closed_ = false;
};

}  // namespace toolkit::qt
