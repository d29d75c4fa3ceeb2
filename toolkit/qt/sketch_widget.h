#pragma once

#include <QWidget>

#include "toolkit/picture_box.h"
#include "toolkit/qt/letters.h"
#include "toolkit/raster/canvas.h"

namespace toolkit::qt {

// Shows a picture box: its canvas in a thin frame, pixel by pixel. What the mouse and the keyboard
// do over it goes to the box.
class SketchWidget : public QWidget {
 public:
  SketchWidget(PictureBox& box, QWidget* parent);

  raster::RasterCanvas& canvas() { return canvas_; }
  // Gives the canvas the size and pixel ratio that the widget has now, with `zoom` logical pixels
  // to one of the program's. Drawing may come before the widget is shown, so this does not wait for
  // a resize event.
  void FitCanvas(double zoom);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  // The second press of a double click is a press like any other.
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  Point OnCanvas(const QPointF& place) const;
  MouseEvent Seen(const QMouseEvent& event) const;
  // Shows what a press at this place would do.
  void FitCursor(const QPointF& place);

  PictureBox& box_;
  double zoom_ = 1.0;
  double ratio_ = 1.0;  // the screen's pixels to a logical one
  int frame_ = 1;       // the frame's thickness, in the screen's pixels
  Letters letters_;
  raster::RasterCanvas canvas_;
};

}  // namespace toolkit::qt
