#include "toolkit/qt/desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QPalette>
#include <QProxyStyle>
#include <QScreen>

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

QSize ScreenSize() {
  const QScreen* screen = QApplication::primaryScreen();
  return screen != nullptr ? screen->geometry().size() : QSize(1024, 768);
}

}  // namespace

QtDesktop::QtDesktop(QApplication& application) {
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
  return Twips(ScreenSize()).Of(ScreenSize().width());
}

float QtDesktop::ScreenHeight() const {
  return Twips(ScreenSize()).Of(ScreenSize().height());
}

void QtDesktop::Create(Window& window) {
  QApplication::setApplicationDisplayName(Text(window.Caption));
  mirror_ = std::make_unique<WindowMirror>(window, Twips(ScreenSize()));
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
