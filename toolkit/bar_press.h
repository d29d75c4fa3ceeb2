#pragma once

#include <optional>

namespace toolkit {

class ScrollBar;

// A scroll bar's parts, in the program's pixels: an arrow at each end, and the thumb between them,
// short enough to have some way to go on the short scroll bars of the layout.
inline constexpr double kBarArrow = 14.0;
inline constexpr double kBarThumb = 12.0;

// What a pointer that is pressed on a scroll bar does to it, for backends whose own scroll bars do
// something else. Places are along the bar, from its left or upper end.
class BarPress {
 public:
  explicit BarPress(ScrollBar& bar) : bar_(bar) {}

  // The pointer is pressed. The bar's length and the place are in any unit, of which the program's
  // pixel has `pixel`. An arrow makes a small change, the place beside the thumb a large one; the
  // thumb is gripped. True if it goes on while it is held: ask Again from time to time.
  bool Press(double place, double length, double pixel);
  // The pointer is still held there. False when the thumb has come to it, or nothing goes on.
  bool Again();
  // The pointer is moved. A gripped thumb follows it.
  void Drag(double place);

 private:
  double Thumb() const;  // how far the thumb is along its way

  ScrollBar& bar_;
  double arrow_ = 0.0, thumb_ = 0.0, way_ = 0.0;  // lengths
  double place_ = 0.0;                            // of the pointer, from where the way begins
  int side_ = 0;                                  // of the thumb, on which it was pressed
  std::optional<double> grip_;                    // where on the thumb it was pressed
};

}  // namespace toolkit
