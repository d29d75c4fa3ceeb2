#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include "toolkit/qt/accessibility.h"
#include "toolkit/qt/frame.h"
#include "toolkit/qt/keys.h"
#include "toolkit/qt/style.h"
#include "toolkit/qt/widgets.h"

namespace toolkit::qt {
namespace {

// A triangle in the middle of the box, its tip to the right, turned by quarters clockwise.
void PaintArrow(QPainter& painter, const QRectF& box, int quarters, const QColor& colour) {
  constexpr double kShare = 0.28;  // half of its height, in the box's shorter side
  const double half = kShare * std::min(box.width(), box.height());
  QPainterPath arrow;
  arrow.moveTo(-half / 2.0, -half);
  arrow.lineTo(half / 2.0, 0.0);
  arrow.lineTo(-half / 2.0, half);
  arrow.closeSubpath();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(box.center());
  painter.rotate(90.0 * quarters);
  painter.fillPath(arrow, colour);
  painter.restore();
}

}  // namespace

ScrollWidget::ScrollWidget(ScrollBar& bar, QWidget* parent)
    : QScrollBar(bar.Direction == Orientation::Vertical ? Qt::Vertical : Qt::Horizontal, parent),
      bar_(bar) {
  SetAccessibleValue(*this, bar);  // first: what follows is announced already
  setRange(bar.Min, bar.Max);
  setSingleStep(bar.SmallChange);
  setPageStep(bar.LargeChange);
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::PreventContextMenu);
}

void ScrollWidget::paintEvent(QPaintEvent*) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const auto part = [&](QStyle::SubControl which) {
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, which, this);
  };
  const auto held = [&](QStyle::SubControl which) {
    return option.state.testFlag(QStyle::State_Sunken) && option.activeSubControls == which;
  };
  const QColor face = palette().color(QPalette::Button);
  const QColor edge = palette().color(QPalette::Mid);
  const double line = ZoomOf(*this);
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window).darker(112));
  for (const QStyle::SubControl which :
       {QStyle::SC_ScrollBarSubLine, QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSlider}) {
    painter.fillRect(part(which), held(which) ? face.darker(115) : face.lighter(104));
    PaintFrame(painter, part(which), edge, line);
  }
  const int first = orientation() == Qt::Vertical ? 3 : 2;  // up, or left
  const QColor ink = palette().color(QPalette::ButtonText);
  PaintArrow(painter, QRectF(part(QStyle::SC_ScrollBarSubLine)), first, ink);
  PaintArrow(painter, QRectF(part(QStyle::SC_ScrollBarAddLine)), first + 2, ink);
  PaintFrame(painter, rect(), hasFocus() ? palette().color(QPalette::Highlight) : edge, line);
}

void ScrollWidget::keyPressEvent(QKeyEvent* event) {
  if (!bar_.UserKey(KeyOf(*event).code)) QScrollBar::keyPressEvent(event);
}

void ScrollWidget::wheelEvent(QWheelEvent* event) {
  bar_.UserWheel(event->angleDelta().x(), event->angleDelta().y());
  event->accept();
}

}  // namespace toolkit::qt
