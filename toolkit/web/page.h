#pragma once

#include <string>

// What the page's script does for the program, and the mark of a function that it calls. Texts are
// UTF-8 with a 0 behind, lengths are the page's pixels. Elements have numbers; 0 is the window.
#define FROM_PAGE [[clang::import_module("page")]]
#define TO_PAGE(name) [[clang::export_name(name)]]

namespace toolkit::web::page {
extern "C" {

// Makes an element of a kind that the script knows, in another one, and gives its number.
FROM_PAGE int Make(const char* kind, const char* name, int in);
// Sets what the element shows or tells; most of it are attributes.
FROM_PAGE void Set(int element, const char* what, const char* text);
FROM_PAGE void Place(int element, double left, double top, double width, double height,
                     double letters);
// Gives the keyboard to the element of this name.
FROM_PAGE void GiveFocus(const char* name);
// The zoom, and how large some parts are at it.
FROM_PAGE void TellZoom(double zoom, int menuHeight, double barArrow, double barThumb);
FROM_PAGE void Announce(const char* text);
FROM_PAGE void ShowMessage(const char* text);
// Draws a text on white and hands it over by Tile. The colour is 0xrrggbb.
FROM_PAGE void DrawLetters(const char* text, int pixels, int colour);
// Shows the picture in the next animation frame.
FROM_PAGE void Repaint();
FROM_PAGE double Now();  // milliseconds
FROM_PAGE void End();
}

inline void Set(int element, const char* what, const std::string& text) {
  Set(element, what, text.c_str());
}
// The same, but only what is new, as a change costs the browser time. For all that the user does
// not change as well.
void Tell(int element, const char* what, const std::string& text);
inline void Tell(int element, const char* what, bool truth) {
  Tell(element, what, std::string(truth ? "true" : "false"));
}

}  // namespace toolkit::web::page
