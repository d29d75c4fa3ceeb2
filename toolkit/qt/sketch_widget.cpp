#include "toolkit/qt/sketch_widget.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include "toolkit/qt/frame.h"
#include "toolkit/qt/keys.h"

namespace toolkit::qt {
namespace {

Qt::CursorShape ShapeOf(Cursor cursor) {
  switch (cursor) {
    case Cursor::Cross:
      return Qt::CrossCursor;
    case Cursor::PointingHand:
      return Qt::PointingHandCursor;
    case Cursor::ClosedHand:
      return Qt::ClosedHandCursor;
    default:
      return Qt::ArrowCursor;
  }
}

constexpr int kFocusRing = 2;  // pixels at 96 dots per inch

}  // namespace

SketchWidget::SketchWidget(PictureBox& box, QWidget* parent)
    : QWidget(parent), box_(box), canvas_(kPacking, letters_, [this] { update(); }) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setMouseTracking(true);
  // By the tab key only: a click on the picture leaves the keyboard with the scroll bar in use.
  setFocusPolicy(Qt::TabFocus);
}

void SketchWidget::FitCanvas(double zoom) {
  zoom_ = zoom;
  ratio_ = devicePixelRatioF();
  frame_ = FrameSide(kFramePixels * zoom * ratio_);
  const Extent pixels{qRound(width() * ratio_) - 2 * frame_,
                      qRound(height() * ratio_) - 2 * frame_};
  if (canvas_.Resize(pixels, ratio_ * zoom, !box_.CanRedraw())) box_.Redraw();
}

bool SketchWidget::event(QEvent* event) {
  if (event->type() == QEvent::Show || event->type() == QEvent::ScreenChangeInternal) {
    FitCanvas(zoom_);
  }
  return QWidget::event(event);
}

void SketchWidget::paintEvent(QPaintEvent*) {
  FitCanvas(zoom_);
  FitCursor(mapFromGlobal(QCursor::pos()));
  std::vector<Stroke> pointer;
  if (hasFocus()) {
    if (const auto at = box_.PointerOnCanvas()) pointer = PointerShape(*at, canvas_.Density());
  }
  const raster::Pixels picture = canvas_.Look(pointer);
  const auto bytes = picture.stride * static_cast<std::ptrdiff_t>(sizeof(std::uint32_t));
  const QImage image(reinterpret_cast<const uchar*>(picture.bits), picture.width, picture.height,
                     bytes, QImage::Format_RGB32);
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  // The picture's pixels are the screen's own, so the painter must not enlarge them.
  painter.save();
  painter.scale(1.0 / ratio_, 1.0 / ratio_);
  painter.drawImage(QPoint(frame_, frame_), image);
  painter.restore();
  // Last: at a fractional ratio the picture may reach a pixel into it.
  if (hasFocus()) {
    PaintFrame(painter, rect(), palette().color(QPalette::Highlight), kFocusRing * zoom_);
  } else {
    PaintFrame(painter, rect(), palette().color(QPalette::Dark), kFramePixels * zoom_);
  }
}

void SketchWidget::mousePressEvent(QMouseEvent* event) {
  box_.UserMouseDown(Seen(*event));
  FitCursor(event->position());
}

void SketchWidget::mouseReleaseEvent(QMouseEvent* event) {
  box_.UserMouseUp(Seen(*event));
  FitCursor(event->position());
}

void SketchWidget::mouseMoveEvent(QMouseEvent* event) {
  FitCursor(event->position());
}

void SketchWidget::keyPressEvent(QKeyEvent* event) {
  if (!box_.UserKeyDown(KeyOf(*event))) QWidget::keyPressEvent(event);
}

void SketchWidget::keyReleaseEvent(QKeyEvent* event) {
  if (!box_.UserKeyUp(KeyOf(*event))) QWidget::keyReleaseEvent(event);
}

void SketchWidget::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  box_.UserFocusLost();
}

Point SketchWidget::OnCanvas(const QPointF& place) const {
  return {place.x() * ratio_ - frame_, place.y() * ratio_ - frame_};
}

MouseEvent SketchWidget::Seen(const QMouseEvent& event) const {
  // Qt numbers the buttons as the program knows them: 1 left, 2 right, 4 middle.
  return {static_cast<int>(event.button()), ShiftState(event.modifiers()),
          OnCanvas(event.position())};
}

void SketchWidget::FitCursor(const QPointF& place) {
  const Qt::CursorShape shape = ShapeOf(box_.CursorAt(OnCanvas(place)));
  if (cursor().shape() != shape) setCursor(shape);
}

}  // namespace toolkit::qt
