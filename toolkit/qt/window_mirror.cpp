#include "toolkit/qt/window_mirror.h"

#include <QCloseEvent>
#include <QWindow>

#include "toolkit/qt/control_mirror.h"
#include "toolkit/qt/menu_mirror.h"
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

WindowMirror::WindowMirror(Window& window, const TwipScale& twips)
    : window_(window), twips_(twips) {
  setObjectName(Text(window.Name));
  setWindowTitle(Text(window.Caption));
  setMenuBar(new MenuBarWidget(this));
  menuBar()->setNativeMenuBar(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  auto* client = new QWidget(this);
  setCentralWidget(client);
  menus_ = MirrorMenus(window.menus, *menuBar());
  controls_ = MirrorControls(window.controls, twips, *client);
  for (Timer* timer : window.timers) timers_.push_back(std::make_unique<TimerMirror>(*timer));
  settling_.setInterval(kSettlingMilliseconds);
  QObject::connect(&settling_, &QTimer::timeout, this, [this, looks = 0]() mutable {
    FitFrame();
    if (++looks >= kSettlingLooks) settling_.stop();
  });
  Refresh();
  window.Attach(this);
}

WindowMirror::~WindowMirror() {
  window_.Attach(nullptr);
}

void WindowMirror::Refresh() {
  FitFrame();
  if (window_.Visible && !isVisible() && !closed_) {
    show();
    settling_.start();
  } else if (!window_.Visible) {
    hide();
  }
}

// The state's size is the outer one: what the frame takes is missing inside. Asked only once for
// each place, so that a user who moves the window keeps it where it is.
void WindowMirror::FitFrame() {
  const QRect outer = twips_.PixelsOf(window_.Left, window_.Top, window_.Width, window_.Height);
  const QWindow* handle = windowHandle();
  const QMargins frame = handle != nullptr ? handle->frameMargins() : QMargins();
  const QRect inner = outer.marginsRemoved(frame);
  if (inner == asked_) return;
  asked_ = inner;
  setGeometry(inner);
}

void WindowMirror::Close() {
  closed_ = true;
  settling_.stop();
  hide();
}

void WindowMirror::closeEvent(QCloseEvent* event) {
  event->accept();
  window_.UserClose();
}

}  // namespace toolkit::qt
