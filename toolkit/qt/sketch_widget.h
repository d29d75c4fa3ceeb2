#pragma once

#include <QWidget>

#include <functional>
#include <optional>

#include "toolkit/picture_box.h"
#include "toolkit/qt/canvas.h"

namespace toolkit::qt {

// Shows a canvas in a thin frame, pixel by pixel, and reports mouse buttons in the canvas's pixels
// and the keys that come while it has the focus.
class SketchWidget : public QWidget {
 public:
  // `zoom` as for TwipScale.
  SketchWidget(QWidget* parent, double zoom);

  QtCanvas& canvas() { return canvas_; }
  // Gives the canvas the size and pixel ratio that the widget has now. Drawing may come before the
  // widget is shown, so this does not wait for a resize event.
  void FitCanvas();

  // What the picture shows, for those who do not see it.
  void Describe(const QString& text);

  std::function<void(const MouseEvent&)> pressed, released;
  std::function<void(Key key, int shift)> keyed;
  // Where the keyboard points; drawn over the picture while this has the focus.
  std::function<std::optional<KeyPointer>()> pointer;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  // The second press of a double click is a press like any other.
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void PaintPointer(QPainter& painter, const KeyPointer& at) const;
  MouseEvent Seen(const QMouseEvent& event) const;

  double zoom_;
  QtCanvas canvas_;
};

}  // namespace toolkit::qt
