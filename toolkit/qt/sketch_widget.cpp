#include "toolkit/qt/sketch_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "toolkit/qt/frame.h"

namespace toolkit::qt {
namespace {

int ShiftState(Qt::KeyboardModifiers keys) {
  return (keys.testFlag(Qt::ShiftModifier) ? kShiftMask : 0) |
         (keys.testFlag(Qt::ControlModifier) ? kCtrlMask : 0) |
         (keys.testFlag(Qt::AltModifier) ? kAltMask : 0);
}

std::optional<Key> KeyOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return Key::Left;
    case Qt::Key_Right:
      return Key::Right;
    case Qt::Key_Up:
      return Key::Up;
    case Qt::Key_Down:
      return Key::Down;
    case Qt::Key_Home:
      return Key::Home;
    case Qt::Key_End:
      return Key::End;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      return Key::Pick;
    case Qt::Key_Escape:
      return Key::Cancel;
    default:
      return std::nullopt;
  }
}

}  // namespace

SketchWidget::SketchWidget(QWidget* parent, double zoom)
    : QWidget(parent), zoom_(zoom), canvas_([this] { update(); }) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setContextMenuPolicy(Qt::PreventContextMenu);
  // By the tab key only: a click on the picture leaves the keyboard with the scroll bar in use.
  setFocusPolicy(Qt::TabFocus);
}

void SketchWidget::FitCanvas() {
  canvas_.Resize(size() - QSize(2 * kFramePixels, 2 * kFramePixels), devicePixelRatioF(), zoom_);
}

bool SketchWidget::event(QEvent* event) {
  if (event->type() == QEvent::Show || event->type() == QEvent::ScreenChangeInternal) FitCanvas();
  return QWidget::event(event);
}

void SketchWidget::paintEvent(QPaintEvent*) {
  FitCanvas();
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  // Without the ratio's scale the picture goes to whole device pixels, one for one.
  const double ratio = canvas_.Ratio();
  painter.save();
  painter.scale(1.0 / ratio, 1.0 / ratio);
  painter.drawImage(QPointF(kFramePixels * ratio, kFramePixels * ratio), canvas_.Look());
  if (hasFocus() && pointer) {
    if (const auto at = pointer()) PaintPointer(painter, *at);
  }
  painter.restore();
  // Last: at a fractional ratio the picture may reach a pixel into it.
  PaintFrame(painter, rect(), palette().color(hasFocus() ? QPalette::Highlight : QPalette::Dark));
}

// A ring around the place and a dashed line to a small one at the tip, on a white edge that keeps
// them visible on any ink.
void SketchWidget::PaintPointer(QPainter& painter, const KeyPointer& at) const {
  const double ratio = canvas_.Ratio();
  const auto on = [&](Point place) {
    return QPointF(place.x + 0.5, place.y + 0.5) + QPointF(kFramePixels, kFramePixels) * ratio;
  };
  const double frame = kFramePixels * ratio;
  painter.setClipRect(QRectF(frame, frame, canvas_.Size().width, canvas_.Size().height));
  painter.setRenderHint(QPainter::Antialiasing);
  const QPen halo(Qt::white, 5.0 * ratio);
  const QPen ink(Qt::black, 2.0 * ratio);
  if (at.tip) {
    QPen dashes = ink;
    dashes.setDashPattern({3.0, 2.0});
    dashes.setCapStyle(Qt::FlatCap);
    for (const QPen& pen : {halo, dashes}) {
      painter.setPen(pen);
      painter.drawLine(on(at.place), on(*at.tip));
    }
  }
  for (const QPen& pen : {halo, ink}) {
    painter.setPen(pen);
    painter.drawEllipse(on(at.place), 7.0 * ratio, 7.0 * ratio);
    if (at.tip) painter.drawEllipse(on(*at.tip), 2.0 * ratio, 2.0 * ratio);
  }
}

void SketchWidget::mousePressEvent(QMouseEvent* event) {
  if (pressed) pressed(Seen(*event));
}

void SketchWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (released) released(Seen(*event));
}

void SketchWidget::keyPressEvent(QKeyEvent* event) {
  const std::optional<Key> key = KeyOf(event->key());
  if (!key || !keyed) {
    QWidget::keyPressEvent(event);
  } else if (key != Key::Pick || !event->isAutoRepeat()) {
    keyed(*key, ShiftState(event->modifiers()));
  }
}

void SketchWidget::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Shift || event->isAutoRepeat() || !keyed) {
    QWidget::keyReleaseEvent(event);
  } else {
    keyed(Key::ShiftReleased, ShiftState(event->modifiers()));
  }
}

void SketchWidget::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  // SHIFT may be let go elsewhere, unseen.
  if (keyed) keyed(Key::Cancel, 0);
}

// Qt would report the same text as a new one.
void SketchWidget::Describe(const QString& text) {
  if (text != accessibleDescription()) setAccessibleDescription(text);
}

MouseEvent SketchWidget::Seen(const QMouseEvent& event) const {
  const QPointF place = event.position() - QPointF(kFramePixels, kFramePixels);
  // Qt numbers the buttons as the program knows them: 1 left, 2 right, 4 middle.
  return {static_cast<int>(event.button()),
          ShiftState(event.modifiers()),
          {place.x() * canvas_.Ratio(), place.y() * canvas_.Ratio()}};
}

}  // namespace toolkit::qt
