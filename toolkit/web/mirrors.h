#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "toolkit/lengths.h"
#include "toolkit/window.h"

namespace toolkit::web {

// How long the program's lengths are on the page just now.
struct Scale {
  TwipScale twips{1.0};
  double ratio = 1.0;  // the screen's pixels to one of the page's
  int menuHeight = 0;  // the menu bar's, in the page's pixels

  // The size of letters: whole pixels of the screen, which are finer than the page's.
  double Letters(float points) const { return FontPixels(points, twips.Zoom() * ratio) / ratio; }
};

// Makes the component's element. What the user does to it comes in by its number (events.cpp).
int MakeElement(Component& component, const char* kind, int in = 0);
Component& ComponentOf(int element);

// Adds a mirror for each item of the menus and for each of the window's controls. `scale` is the
// window's own, which may change.
void MirrorAll(Window& window, const Scale& scale, std::vector<std::unique_ptr<Mirror>>& mirrors);

// What shows a picture box on its element. The box gets its canvas and its voice.
std::function<void(int element)> SketchOf(PictureBox& box, const Scale& scale);

}  // namespace toolkit::web
