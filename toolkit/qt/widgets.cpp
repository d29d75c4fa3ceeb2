#include "toolkit/qt/widgets.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>
#include <utility>

#include "toolkit/qt/frame.h"
#include "toolkit/qt/keys.h"
#include "toolkit/qt/style.h"
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

void ButtonWidget::keyPressEvent(QKeyEvent* event) {
  const KeyEvent key = KeyOf(*event);
  // The space bar stays with Qt, which shows the button held down meanwhile.
  if (key.code == KeyCode::Enter && Clicks(key)) {
    click();
  } else {
    QPushButton::keyPressEvent(event);
  }
}

void MenuBarWidget::Enter() {
  // The Alt key does so when it is pressed and let go alone.
  QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, {});
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, {});
  eventFilter(this, &press);
  eventFilter(this, &release);
}

bool MenuBarWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QMenuBar::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  QAction* item = actionAt(help->pos());
  if (item != nullptr) {
    QToolTip::showText(help->globalPos(), item->toolTip(), this, actionGeometry(item));
  } else {
    QToolTip::hideText();
  }
  return true;
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
    PaintFrame(painter, actionGeometry(activeAction()), palette().color(QPalette::Highlight),
               ZoomOf(*this));
  }
}

TextWidget::TextWidget(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

// The paint event that comes here is the frame's, the text's goes to the viewport.
bool TextWidget::event(QEvent* event) {
  const bool done = QPlainTextEdit::event(event);
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    update();
  } else if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange) {
    const int frame = static_cast<int>(std::ceil(ZoomOf(*this)));
    setViewportMargins(frame, frame, frame, frame);
  } else if (event->type() == QEvent::Paint) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const QColor idle = palette().color(QPalette::Window).darker(130);
    PaintFrame(painter, rect(), hasFocus() ? palette().color(QPalette::Highlight) : idle,
               ZoomOf(*this));
  }
  return done;
}

void TextWidget::insertFromMimeData(const QMimeData* source) {
  if (source != nullptr && source->hasText()) QPlainTextEdit::insertFromMimeData(source);
}

OptionWidget::OptionWidget(OptionGroup& group, OptionButton& option,
                           std::function<void(const OptionButton&)> focus, QWidget* parent)
    : QRadioButton(parent), group_(group), option_(option), focus_(std::move(focus)) {
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
    const int gap = style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, &option, this);
    PaintFrame(painter, contents.adjusted(-gap / 2, 0, 0, 0), palette().color(QPalette::Highlight),
               ZoomOf(*this));
  }
}

void OptionWidget::keyPressEvent(QKeyEvent* event) {
  if (const OptionButton* next = group_.UserKey(option_, KeyOf(*event))) {
    focus_(*next);
  } else {
    QRadioButton::keyPressEvent(event);
  }
}

}  // namespace toolkit::qt
