#pragma once

#include <vector>

namespace toolkit {

class Control;

// The rule by which a screen's pixels become the program's. Lengths on a screen are its logical
// pixels; lengths of the window are the program's pixels, 15 twips each, `zoom` of the screen's.

struct Size {
  double width, height;
  bool operator==(const Size&) const = default;
};

// What a window needs around a square picture that takes a share of the screen's height. The
// program says it: only it knows what it will place there.
struct Room {
  double share;      // the picture's side / the screen's height
  double beside;     // what stands left and right of the picture
  double under;      // what stands above and under it
  double narrowest;  // the least width that the controls under it need
  double lowest;     // the least height of the picture beside what stands there
};

// The menu bar's height, in the program's pixels.
inline constexpr double kMenuHeight = 24.0;
inline constexpr float kMenuPoints = 9.0F;  // its letters

// Letters at half their size are the smallest that can be read.
inline constexpr double kLeastZoom = 0.5;

// A screen as a program is told of it.
struct View {
  double zoom;
  Size screen;  // in the program's pixels
  Size free;    // the part of the screen that it was made for
};

// The view for the free part of a screen with a window whose title takes `title` of its height. The
// zoom is 1 on a height of 1080 and less, grows with the height above, and is smaller, down to
// kLeastZoom, where the window would not fit. On a screen that is high and narrow the program is
// told a lower one, so that what stands beside the picture stays on it. Sizes of 0 and less count
// as 1.
View ViewOf(Size part, double title, const Room& room);

// The zoom at which a window that has been laid out for that view, and is `needed` large without
// its menu bar (in the program's pixels), fits into another free part: its picture keeps its share
// of the height where the rest fits, and the zoom is at least kLeastZoom. Where the part is as
// large as at first, so is the window.
double ZoomFor(Size free, double title, Size needed, const View& laid);

// The part of a page to be filled, where `seen` of it shows without scrolling: more than that where
// letters would be too small to be read, as on a telephone. There the page scrolls.
Size PageFor(Size seen, const Room& room);

// The size that holds all controls, shown or not, in the program's pixels.
Size Extents(const std::vector<Control*>& controls);

}  // namespace toolkit
