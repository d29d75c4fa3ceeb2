#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "toolkit/canvas.h"

namespace sketch {

using toolkit::Colour;

// One drawing operation in user units.
struct Drawing {
  enum class Kind : std::uint8_t { Scale, Line, Circle, Dot, Text };

  Kind kind;
  Colour colour{};
  bool dotted = false;
  int width = 1;
  double x1 = 0.0, y1 = 0.0;  // a corner of the scale, an end of the line, a point of the circle,
                              // the dot, the text's corner
  double x2 = 0.0, y2 = 0.0;  // the other corner or end; the circle's direction to its centre
  double radius = 0.0;
  std::uint32_t text = 0;  // which of the record's texts
};

// What has been drawn on a sketch since it was cleared, so that it can be drawn again, sharp, when
// the canvas has another size or density.
//
// A run draws its whole path anew at every step. Kept one by one, 12,500 steps would be a hundred
// million dots. Its steps are kept as repetitions instead, functions that draw again: all that can
// still be seen of them is in the last two and in the erasing lines of the others, and those matter
// only to what was drawn before the run.
class Record {
 public:
  using Repetition = std::function<void()>;

  // More than this is not kept: it would take longer to draw again than a user waits for. Only runs
  // over other runs come there, by the lines that they erase with.
  static constexpr std::size_t kMost = 50'000;

  // Forgets everything.
  void Clear();
  // Whether everything since the last clear is known.
  bool Complete() const { return complete_; }
  std::size_t Size() const { return drawings_.size() + 2 * kept_.size(); }

  void Add(const Drawing& drawing);
  void AddText(Drawing drawing, const std::string& text);
  const std::string& Text(std::uint32_t index) const { return texts_[index]; }

  // A repetition begins. What it erases with goes to AddEraser.
  void Repeat(Repetition draw);
  void AddEraser(const Drawing& line);

  bool Repeats() const { return !kept_.empty(); }
  // Hands out the repetitions to be drawn into the record: what they draw from is going to change.
  std::vector<Repetition> TakeRepetitions();

  // Draws all of it in its order: each drawing by `show`, each repetition by itself.
  void Replay(const std::function<void(const Drawing&)>& show) const;

 private:
  struct Kept {
    Repetition draw;
    std::vector<Drawing> erasers;
  };

  std::vector<Drawing> drawings_;
  std::vector<std::string> texts_;
  std::vector<Kept> kept_;  // the last two repetitions
  bool complete_ = true;
};

}  // namespace sketch
