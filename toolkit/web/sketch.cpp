#include <algorithm>
#include <cmath>

#include "toolkit/picture_box.h"
#include "toolkit/raster/canvas.h"
#include "toolkit/web/mirrors.h"
#include "toolkit/web/page.h"

namespace toolkit::web {
namespace {

// Red, green, blue and a full byte, one after the other in memory.
constexpr raster::Packing kPacking{0, 8, 16};

raster::Tile* asked = nullptr;  // the tile that the page is drawing

// The browser's letters.
struct Letters : raster::TileSource {
  raster::Tile Draw(const std::string& text, const raster::Font& font, Colour colour) override {
    raster::Tile tile;
    asked = &tile;
    const int ink = colour.red << 16 | colour.green << 8 | int{colour.blue};
    page::DrawLetters(text.c_str(), font.pixels, ink);
    return tile;
  }
};

// A picture box's canvas, which the page shows pixel by pixel. A page has one, as long as it is
// there.
struct Sketch {
  explicit Sketch(PictureBox& shown) : box(shown) {
    box.AttachCanvas(&canvas);
    box.AttachAnnouncer([](const std::string& text) { page::Announce(text.c_str()); });
  }

  // The canvas begins and ends between pixels of the screen, where a pixel of the page may be a
  // broken number of them. So the browser shows each of the picture's pixels as one of the
  // screen's.
  void Show(int element, const Scale& scale) {
    const PixelBox place = scale.twips.CanvasOf(box);
    const double ratio = scale.ratio;
    const int menu = scale.menuHeight;
    const auto whole = [&](int length) { return static_cast<int>(std::lround(length * ratio)); };
    const Extent size{std::max(whole(place.width), 1), std::max(whole(place.height), 1)};
    page::Place(element, whole(place.left) / ratio, whole(place.top + menu) / ratio - menu,
                size.width / ratio, size.height / ratio, 0.0);
    page::Tell(element, "width", std::to_string(size.width));
    page::Tell(element, "height", std::to_string(size.height));
    page::Tell(element, "description", box.Description);
    canvas.SetFont(box.FontName, box.FontSize);
    if (canvas.Resize(size, scale.twips.Zoom() * ratio, !box.CanRedraw())) box.Redraw();
    page::Repaint();  // the keyboard's pointer may have moved
  }

  PictureBox& box;
  Letters letters;
  raster::RasterCanvas canvas{kPacking, letters, page::Repaint};
};

std::unique_ptr<Sketch> sketch;

}  // namespace

std::function<void(int)> SketchOf(PictureBox& box, const Scale& scale) {
  sketch = std::make_unique<Sketch>(box);
  return [&scale](int element) { sketch->Show(element, scale); };
}

// The picture, with the keyboard's pointer over it while the sketch has the keyboard.
TO_PAGE("Look") const std::uint32_t* Look(bool focused) {
  std::vector<Stroke> strokes;
  if (const auto at = sketch->box.PointerOnCanvas(); at && focused) {
    strokes = PointerShape(*at, sketch->canvas.Density());
  }
  return sketch->canvas.Look(strokes).bits;
}

// Room for the pixels of the letters that the page has been asked for.
TO_PAGE("Tile") std::uint32_t* RoomForTile(int width, int height, int left) {
  *asked = {width, height, left, {}};
  asked->pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  return asked->pixels.data();
}

}  // namespace toolkit::web
