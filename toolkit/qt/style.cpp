#include "toolkit/qt/style.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QToolTip>
#include <QWidget>

#include <algorithm>

#include "toolkit/bar_press.h"
#include "toolkit/lengths.h"
#include "toolkit/zoom.h"

namespace toolkit::qt {
namespace {

constexpr const char* kZoom = "zoom";

class Style : public QProxyStyle {
 public:
  Style(double zoom, QObject* owner) : QProxyStyle("Fusion"), zoom_(zoom) {
    setParent(owner);
    setProperty(kZoom, zoom);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const int own = metric == PM_ScrollBarSliderMin
                        ? static_cast<int>(kBarThumb)
                        : QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
      case PM_ScrollBarSliderMin:
      case PM_ScrollBarExtent:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
      case PM_RadioButtonLabelSpacing:
      case PM_MenuBarItemSpacing:
      case PM_MenuBarHMargin:
      case PM_MenuBarVMargin:
      case PM_MenuHMargin:
      case PM_MenuVMargin:
        return own == 0 ? 0 : std::max(1, qRound(own * zoom_));
      default:
        return own;
    }
  }

 private:
  double zoom_;
};

QPalette LightPalette() {
  QPalette palette(QColor(239, 239, 239));
  palette.setColor(QPalette::Highlight, QColor(38, 110, 190));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  return palette;
}

}  // namespace

// A new style, because widgets ask it for measures when they get it.
void ApplyStyle(double zoom) {
  QApplication::setStyle(new Style(zoom, QApplication::instance()));
  QApplication::setPalette(LightPalette());
  QFont font = QApplication::font();
  font.setPixelSize(FontPixels(kMenuPoints, zoom));
  QApplication::setFont(font);
  QToolTip::setFont(font);
}

double ZoomOf(const QWidget& widget) {
  const QVariant zoom = widget.style()->property(kZoom);
  return zoom.isValid() ? zoom.toDouble() : 1.0;
}

}  // namespace toolkit::qt
