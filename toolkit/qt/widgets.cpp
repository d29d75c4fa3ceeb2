#include "toolkit/qt/widgets.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QWheelEvent>

#include "toolkit/qt/frame.h"
#include "toolkit/qt/wrapped_text.h"

namespace toolkit::qt {

void LabelWidget::SetText(const QString& text, const QString& spoken) {
  if (text == text_) return;
  text_ = text;
  setAccessibleName(spoken);
  update();
}

void LabelWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawWrapped(painter, rect(), text_, false);
}

ScrollWidget::ScrollWidget(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent) {
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::PreventContextMenu);
}

void ScrollWidget::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  QPainter painter(this);
  PaintFrame(painter, rect(), palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
}

// Qt's own scroll bar moves to the right with the left arrow, as it inverts both pairs for the sake
// of the upright ones.
void ScrollWidget::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
      triggerAction(SliderSingleStepSub);
      break;
    case Qt::Key_Right:
    case Qt::Key_Down:
      triggerAction(SliderSingleStepAdd);
      break;
    default:
      QScrollBar::keyPressEvent(event);
  }
}

// One notch is one small step, as the values are few and each has its own picture. Turned away from
// the user the wheel moves the thumb up or left.
void ScrollWidget::wheelEvent(QWheelEvent* event) {
  constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;
  const QPoint turned = event->angleDelta();
  wheel_ += qAbs(turned.x()) > qAbs(turned.y()) ? turned.x() : turned.y();
  const int notches = wheel_ / kNotch;
  wheel_ -= notches * kNotch;
  setValue(value() - notches * singleStep());
  event->accept();
}

void MenuBarWidget::paintEvent(QPaintEvent* event) {
  QMenuBar::paintEvent(event);
  QPainter painter(this);
  if (activeAction() != nullptr) {
    painter.setClipRegion(QRegion(rect()) - actionGeometry(activeAction()));
  }
  painter.setPen(palette().color(QPalette::Window).darker(112));
  painter.drawLine(0, height() - 1, width(), height() - 1);
  if (hasFocus() && activeAction() != nullptr) {
    painter.setClipping(false);
    PaintFrame(painter, actionGeometry(activeAction()), palette().color(QPalette::Highlight));
  }
}

TextWidget::TextWidget(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  setFrameShape(QFrame::NoFrame);
  setViewportMargins(1, 1, 1, 1);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

// The paint event that comes here is the frame's, the text's goes to the viewport.
bool TextWidget::event(QEvent* event) {
  const bool done = QPlainTextEdit::event(event);
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    update();
  } else if (event->type() == QEvent::Paint) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const QColor idle = palette().color(QPalette::Window).darker(130);
    PaintFrame(painter, rect(), hasFocus() ? palette().color(QPalette::Highlight) : idle);
  }
  return done;
}

OptionWidget::OptionWidget(QWidget* parent) : QRadioButton(parent) {
  setAutoExclusive(false);
  setFocusPolicy(Qt::StrongFocus);
}

void OptionWidget::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  QStyleOptionButton mark = option;
  mark.rect = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
  painter.drawPrimitive(QStyle::PE_IndicatorRadioButton, mark);
  const QRect contents = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
  DrawWrapped(painter, contents, text(), true);
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = contents.adjusted(-2, 0, 0, 0);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
}

// The arrow keys walk through the buttons that show and click the one that they come to, as in any
// group of radio buttons.
void OptionWidget::keyPressEvent(QKeyEvent* event) {
  const bool on = event->key() == Qt::Key_Down || event->key() == Qt::Key_Right;
  const bool back = event->key() == Qt::Key_Up || event->key() == Qt::Key_Left;
  if (!on && !back) {
    QRadioButton::keyPressEvent(event);
    return;
  }
  QWidget* next = this;
  do {
    next = on ? next->nextInFocusChain() : next->previousInFocusChain();
  } while (next != this && (next->parent() != parent() || !next->isVisible() ||
                            dynamic_cast<OptionWidget*>(next) == nullptr));
  if (next == this) return;
  next->setFocus(on ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  static_cast<OptionWidget*>(next)->click();
}

}  // namespace toolkit::qt
