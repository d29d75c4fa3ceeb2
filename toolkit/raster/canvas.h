#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/pointer_shape.h"
#include "toolkit/raster/shapes.h"
#include "toolkit/raster/text_tiles.h"

namespace toolkit::raster {

// The canvas that every backend shows: a picture in plain memory, in the screen's own pixels, so
// that it is sharp at any density, and the same everywhere down to the last pixel, letters apart.
class RasterCanvas : public Canvas {
 public:
  // `changed` is called when the picture changes for the first time since it was last looked at.
  // The source must outlive the canvas.
  RasterCanvas(Packing packing, TileSource& letters, std::function<void()> changed = nullptr);

  // Makes the picture this large, in the screen's pixels, with `density` of them to one at 96 dots
  // per inch: pens and letters are as much thicker. Where `keep` is set, the old picture is
  // stretched over the new one, else it begins blank. True if size or density have changed.
  bool Resize(Extent size, double density, bool keep = false);
  void SetFont(const std::string& name, float points);

  double Density() const { return density_; }
  // The picture, to be shown; valid until the next call of any function. The next change is
  // reported again. With strokes over it, a copy of the picture, which itself stays as it was.
  Pixels Look(std::span<const Stroke> over = {});

  Extent Size() const override { return size_; }
  int DotSide(int penWidth) const override;
  void Clear(Colour background) override;
  void Line(Point from, Point to, const Pen& pen) override;
  // A circle within a pixel of its centre may leave a single dot.
  void Circle(const CircleShape& circle, const Pen& pen) override;
  void Dots(std::span<const Point> places, const Pen& pen) override;
  // The text darkens what is under it, in each component to the text's own colour: exact on a light
  // background, and the same however often it is printed. A text as light as the background does
  // not show.
  void Text(Point topLeft, const std::string& text, Colour colour) override;

 private:
  Pixels Picture() { return {bits_.data(), size_.width, size_.height, size_.width}; }
  // The dots of a dotted line are a little larger than a solid line is wide, to be seen as well.
  double DotRadius(const Pen& pen) const { return (pen.width + 0.5) * density_ / 2.0; }
  double DotPitch(const Pen& pen) const { return (pen.width + 3.0) * density_; }
  Ink InkOf(const Pen& pen) const;
  void DottedLine(Point from, Point to, const Pen& pen);
  void DottedArc(const CircleShape& circle, const Pen& pen);
  void ApplyFont();
  void Touch();

  Packing packing_;
  std::function<void()> changed_;
  bool reported_ = false;
  Extent size_{1, 1};
  double density_ = 1.0;
  Colour background_ = kWhite;
  std::vector<std::uint32_t> bits_{packing_(kWhite)};
  std::vector<std::uint32_t> shown_;  // the picture with strokes over it
  std::string fontName_ = "Times New Roman";
  float fontPoints_ = 8.25F;
  TextTiles tiles_;
};

}  // namespace toolkit::raster
