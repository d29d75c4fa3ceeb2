#include "toolkit/qt/window_mirror.h"

#include <QCloseEvent>
#include <QWindow>

#include <cmath>

#include "toolkit/qt/control_mirror.h"
#include "toolkit/qt/font.h"
#include "toolkit/qt/icon.h"
#include "toolkit/qt/menu_mirror.h"
#include "toolkit/qt/screen.h"
#include "toolkit/qt/style.h"
#include "toolkit/qt/text.h"
#include "toolkit/qt/timer_mirror.h"
#include "toolkit/qt/widgets.h"

namespace toolkit::qt {
namespace {

// A window manager puts its frame around a window some time after it is shown, without telling. The
// frame is looked for this often and this many times.
constexpr int kSettlingMilliseconds = 20;
constexpr int kSettlingLooks = 100;

}  // namespace

WindowMirror::WindowMirror(Window& window, const QRect& free, const View& view)
    : Mirror(window, [this] { Show(); }),
      window_(window),
      told_(view),
      free_(free),
      twips_(view.zoom),
      bar_(new MenuBarWidget(this)),
      area_(new QScrollArea(this)),
      client_(new QWidget) {
  setObjectName(Text(window.Name));
  setWindowTitle(Text(window.Caption));
  setWindowIcon(ProgramIcon());
  setMenuBar(bar_);
  bar_->setNativeMenuBar(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->setWidgetResizable(true);
  area_->setWidget(client_);
  setCentralWidget(area_);
  menus_ = MirrorMenus(window.menus, *bar_);
  controls_ = MirrorControls(window, twips_, *client_);
  for (Timer* timer : window.timers) timers_.push_back(std::make_unique<TimerMirror>(*timer));
  settling_.setInterval(kSettlingMilliseconds);
  QObject::connect(&settling_, &QTimer::timeout, this, [this] {
    FitFrame();
    if (++looks_ >= kSettlingLooks) settling_.stop();
  });
  ApplyStyle(twips_.Zoom());
  Show();
}

void WindowMirror::Show() {
  FitFrame();
  // Never too small for the controls; what the window lacks is scrolled.
  const Size needed = Extents(window_.controls);
  const auto pixels = [this](double length) {
    return static_cast<int>(std::ceil(length * twips_.Zoom()));
  };
  client_->setMinimumSize(pixels(needed.width), pixels(needed.height));
  if (window_.Visible && !isVisible() && !closed_) {
    show();
    Settle();
  } else if (!window_.Visible) {
    hide();
  }
}

void WindowMirror::Settle() {
  looks_ = 0;
  settling_.start();
}

void WindowMirror::Cover(const QRect& free) {
  if (isVisible()) Settle();
  if (free == free_) return;
  free_ = free;
  twips_ = TwipScale(ZoomFor(RoomIn(free), kTitleHeight, Extents(window_.controls), told_));
  ApplyStyle(twips_.Zoom());
  for (const auto& mirror : controls_) mirror->Refresh();
  asked_ = QRect();
  Show();
}

// A window as large as the screen that the program was told covers all of the free part, which on a
// high and narrow screen is more.
QRect WindowMirror::Outer() const {
  const auto told = [](float twips, double pixels) {
    return std::abs(twips / kTwipsPerPixel - pixels) < 1.0;
  };
  if (told(window_.Width, told_.screen.width) && told(window_.Height, told_.screen.height)) {
    return free_.translated(twips_.PixelsOf(window_.Left), twips_.PixelsOf(window_.Top));
  }
  return {free_.topLeft() + QPoint(twips_.PixelsOf(window_.Left), twips_.PixelsOf(window_.Top)),
          QSize(twips_.PixelsOf(window_.Width), twips_.PixelsOf(window_.Height))};
}

// The state's size is the outer one, with the frame around the window. Asked only once for each
// place, so that a user who moves the window keeps it where it is.
void WindowMirror::FitFrame() {
  const QWindow* handle = windowHandle();
  const QMargins frame = handle != nullptr ? handle->frameMargins() : QMargins();
  const QRect inner = Outer().marginsRemoved(frame);
  if (inner == asked_) return;
  asked_ = inner;
  setGeometry(inner);
}

void WindowMirror::Close() {
  closed_ = true;
  settling_.stop();
  hide();
}

// Where all is slow the frame comes after the last look, but before the window is the active one.
void WindowMirror::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) FitFrame();
}

void WindowMirror::closeEvent(QCloseEvent* event) {
  event->accept();
  window_.UserClose();
}

void WindowMirror::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10) {
    bar_->Enter();
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace toolkit::qt
