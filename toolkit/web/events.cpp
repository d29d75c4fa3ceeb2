#include "toolkit/picture_box.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/web/mirrors.h"
#include "toolkit/web/page.h"

namespace toolkit::web {
namespace {

template <class Kind>
Kind& Of(int element) {
  return static_cast<Kind&>(ComponentOf(element));
}

std::string written;  // the text that the page hands over

}  // namespace

// What the user does to an element, as the page's script reports it by the element's number. It
// knows the element's kind; a key it names by its place among the KeyCodes. The functions with a
// result say whether the key is theirs; else the browser may act on it.
struct Events {
  TO_PAGE("ItemClick") static void ItemClick(int at) { Of<MenuItem>(at).UserClick(); }
  TO_PAGE("ButtonClick") static void ButtonClick(int at) { Of<CommandButton>(at).UserClick(); }
  TO_PAGE("OptionClick") static void OptionClick(int at) { Of<OptionButton>(at).UserClick(); }

  // Held down, the keys that click would make the browser click again and again.
  TO_PAGE("ButtonKey") static bool ButtonKey(int at, KeyCode code, int shift, bool repeated) {
    const bool clicks = Clicks({code, shift});
    if (clicks) Of<CommandButton>(at).UserKey({code, shift, repeated});
    return clicks;
  }
  TO_PAGE("OptionKey") static bool OptionKey(int at, KeyCode code, int shift, bool repeated) {
    const OptionButton* next = Of<OptionButton>(at).UserKey({code, shift, repeated});
    if (next != nullptr) page::GiveFocus(next->Name.c_str());
    return next != nullptr || Clicks({code, shift});
  }

  TO_PAGE("BarKey") static bool BarKey(int at, KeyCode code) {
    return Of<ScrollBar>(at).UserKey(code);
  }
  TO_PAGE("BarScroll") static void BarScroll(int at, int value) {
    Of<ScrollBar>(at).UserScroll(value);
    Of<ScrollBar>(at).Changed();  // the browser has moved the thumb, the program may have not
  }
  TO_PAGE("BarPress") static bool BarPress(int at, double place, double length, double pixel) {
    return Of<ScrollBar>(at).Pointer.Press(place, length, pixel);
  }
  TO_PAGE("BarHeld") static bool Held(int at) { return Of<ScrollBar>(at).Pointer.Again(); }
  TO_PAGE("BarDrag") static void Drag(int at, double place) {
    Of<ScrollBar>(at).Pointer.Drag(place);
  }
  TO_PAGE("BarWheel") static void Wheel(int at, double x, double y) {
    Of<ScrollBar>(at).UserWheel(x, y);
  }

  // Room for a text in UTF-8, which TextEdit then takes.
  TO_PAGE("TextRoom") static char* TextRoom(int bytes) {
    written.resize(static_cast<std::size_t>(bytes));
    return written.data();
  }
  TO_PAGE("TextEdit") static void TextEdit(int at) { Of<TextBox>(at).UserEdit(written); }

  TO_PAGE("SketchKey") static bool KeyDown(int at, KeyCode code, int shift, bool repeated) {
    return Of<PictureBox>(at).UserKeyDown({code, shift, repeated});
  }
  TO_PAGE("SketchKeyUp") static bool KeyUp(int at, KeyCode code, int shift) {
    return Of<PictureBox>(at).UserKeyUp({code, shift});
  }
  TO_PAGE("SketchBlur") static void Blur(int at) { Of<PictureBox>(at).UserFocusLost(); }
  TO_PAGE("SketchPress") static void Press(int at, int button, int shift, double x, double y) {
    Of<PictureBox>(at).UserMouseDown({button, shift, {x, y}});
  }
  TO_PAGE("SketchRelease") static void Release(int at, int button, int shift, double x, double y) {
    Of<PictureBox>(at).UserMouseUp({button, shift, {x, y}});
  }
  TO_PAGE("SketchCancel") static void Cancel(int at) { Of<PictureBox>(at).UserMouseCancel(); }
  TO_PAGE("SketchCursor") static Cursor CursorAt(int at, double x, double y) {
    return Of<PictureBox>(at).CursorAt({x, y});
  }
};

}  // namespace toolkit::web
