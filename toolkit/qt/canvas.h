#pragma once

#include <QImage>
#include <QSize>

#include <functional>
#include <string>

#include "toolkit/canvas.h"
#include "toolkit/qt/shapes.h"
#include "toolkit/qt/text_tiles.h"

namespace toolkit::qt {

// A canvas in an image of the screen's own pixels, so that it is sharp at any device-pixel ratio.
class QtCanvas : public Canvas {
 public:
  // `changed` is called when the picture changes for the first time since it was last looked at.
  explicit QtCanvas(std::function<void()> changed);

  // Makes the picture `size` logical pixels large, of `ratio` device pixels each. Another size
  // gives a blank picture; another ratio alone, as on a move to another screen, keeps it, rescaled.
  // Pens and letters are drawn `zoom` times as large as at 1.
  void Resize(QSize size, double ratio, double zoom = 1.0);
  void SetFont(const std::string& name, float points);

  double Ratio() const { return ratio_; }
  // The picture, to be shown; the next change is reported again.
  const QImage& Look();

  Extent Size() const override { return {image_.width(), image_.height()}; }
  int DotSide(int penWidth) const override;
  void Clear(Colour background) override;
  void Line(Point from, Point to, const Pen& pen) override;
  // A circle within a pixel of its centre may leave a single dot.
  void Circle(const CircleShape& circle, const Pen& pen) override;
  void Dots(std::span<const Point> places, const Pen& pen) override;
  // The text darkens what is under it, in each channel to the text's own colour: exact on a light
  // background, and the same however often it is printed. A text as light as the background does
  // not show.
  void Text(Point topLeft, const std::string& text, Colour colour) override;

 private:
  // Device pixels to one at 96 dots per inch.
  double Density() const { return ratio_ * zoom_; }
  // The dots of a dotted line are a little larger than a solid line is wide, to be seen as well.
  double DotRadius(const Pen& pen) const { return (pen.width + 0.5) * Density() / 2.0; }
  double DotPitch(const Pen& pen) const { return (pen.width + 3.0) * Density(); }
  Ink InkOf(const Pen& pen) const;
  void DottedLine(Point from, Point to, const Pen& pen);
  void DottedArc(const CircleShape& circle, const Pen& pen);
  void ApplyFont();
  void Touch();

  std::function<void()> changed_;
  bool reported_ = false;
  QImage image_;
  QSize size_;
  double ratio_ = 1.0;
  double zoom_ = 1.0;
  Colour background_ = kWhite;
  std::string fontName_ = "Times New Roman";
  float fontPoints_ = 8.25F;
  TextTiles tiles_;
};

}  // namespace toolkit::qt
