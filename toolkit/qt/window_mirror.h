#pragma once

#include <QMainWindow>
#include <QScrollArea>
#include <QTimer>

#include <memory>
#include <vector>

#include "toolkit/lengths.h"
#include "toolkit/window.h"

namespace toolkit::qt {

class MenuBarWidget;

// The window on the screen, with its menu bar, its client area and everything in it. A window that
// is too small for its controls scrolls them.
class WindowMirror : public QMainWindow, public Mirror {
 public:
  // `free` is the part of the screen to be covered, in logical pixels, of which the program was
  // told as the view's screen.
  WindowMirror(Window& window, const QRect& free, const View& view);
  // Covers this part of a screen from now on; everything becomes as much larger or smaller.
  void Cover(const QRect& free);
  // Whether the window has been shown, or has come to cover another part, just now.
  bool Settling() const { return settling_.isActive(); }
  // Takes the window from the screen for good.
  void Close();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Show();
  QRect Outer() const;
  void FitFrame();
  void Settle();

  Window& window_;
  View told_;
  QRect free_;
  TwipScale twips_;
  MenuBarWidget* bar_;
  QScrollArea* area_;
  QWidget* client_;
  std::vector<std::unique_ptr<Mirror>> controls_, menus_, timers_;
  QRect asked_;      // the inner place that was asked for last
  QTimer settling_;  // runs while the frame may still be on its way
  int looks_ = 0;
  bool closed_ = false;
};

}  // namespace toolkit::qt
