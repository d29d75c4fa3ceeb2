#include "toolkit/qt/desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QPalette>
#include <QProxyStyle>
#include <QScreen>

#include <algorithm>

#include "toolkit/qt/accessibility.h"
#include "toolkit/qt/text.h"
#include "toolkit/qt/window_mirror.h"

namespace toolkit::qt {
namespace {

// The colours of the pictures are fixed, dark ink on white, so the window around them is light
// whatever the desktop's theme.
QPalette LightPalette() {
  QPalette palette(QColor(239, 239, 239));
  palette.setColor(QPalette::Highlight, QColor(38, 110, 190));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

// The style of the same look everywhere, with thumbs that leave the short scroll bars of the layout
// some way to go.
class Style : public QProxyStyle {
 public:
  explicit Style(QObject* owner) : QProxyStyle("Fusion") { setParent(owner); }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    constexpr int kShortestThumb = 12;
    return metric == PM_ScrollBarSliderMin ? kShortestThumb
                                           : QProxyStyle::pixelMetric(metric, option, widget);
  }
};

// The whole screen, and the part of it that panels leave free.
struct Screen {
  QSize size{1024, 768}, free{size};

  Screen() {
    if (const QScreen* screen = QApplication::primaryScreen()) {
      size = screen->geometry().size();
      free = screen->availableSize();
    }
  }

  // The layout gives three quarters of the screen's height to the sketch. On a low screen, as a
  // small one that its user has set to large letters, what is above and under it must shrink.
  double Zoom() const {
    constexpr double kAroundSketch = 16.0 + 99.0;  // the margin, three rows of buttons
    constexpr double kTitleAndMenu = 54.0;
    constexpr double kLeast = 0.5;  // smaller letters can't be read
    const double room = free.height() - kTitleAndMenu - 0.75 * size.height();
    return std::clamp(room / kAroundSketch, kLeast, 1.0);
  }
};

}  // namespace

QtDesktop::QtDesktop(QApplication& application) : zoom_(Screen().Zoom()) {
  QApplication::setStyle(new Style(&application));
  QApplication::setPalette(LightPalette());
  // The layout is the same in every language.
  QApplication::setLayoutDirection(Qt::LeftToRight);
  // A message box may close before the window is shown, which is not the end.
  QApplication::setQuitOnLastWindowClosed(false);
  InstallAccessibleRoles();
}

QtDesktop::~QtDesktop() = default;

int QtDesktop::Run() {
  return ended_ ? 0 : QApplication::exec();
}

float QtDesktop::ScreenWidth() const {
  return TwipScale(zoom_).TwipsOf(Screen().size.width());
}

float QtDesktop::ScreenHeight() const {
  return TwipScale(zoom_).TwipsOf(Screen().size.height());
}

void QtDesktop::Create(Window& window) {
  QApplication::setApplicationDisplayName(Text(window.Caption));
  mirror_ = std::make_unique<WindowMirror>(window, TwipScale(zoom_));
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
