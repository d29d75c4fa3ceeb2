#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "app/firststep.h"
#include "track/geometry.h"
#include "window/format.h"

namespace app {
namespace {

using toolkit::Key;

constexpr double kAlongTrack = 0.1;  // sketch units that a key press moves the point, in x
// Sketch units that a key press pulls the force's tip. Fine enough to find, at every place, a force
// that needs no other.
constexpr double kPull = 0.25;
constexpr double kEnd = 20.0;  // the track's visible end
constexpr double kFarthestTip = 40.0;

struct Direction {
  int x, y;
};

std::optional<Direction> DirectionOf(Key key) {
  switch (key) {
    case Key::Left:
      return Direction{-1, 0};
    case Key::Right:
      return Direction{1, 0};
    case Key::Up:
      return Direction{0, 1};
    case Key::Down:
      return Direction{0, -1};
    default:
      return std::nullopt;
  }
}

std::string PlaceText(double x, double y, int decimals) {
  return "x = " + window::Format(x, decimals) + ", y = " + window::Format(y, decimals);
}

}  // namespace

void firststep::eikona_KeyDown(Key key, short Shift) {
  const int others = Shift & ~toolkit::kShiftMask;
  const bool arrow = DirectionOf(key).has_value();
  if (arrow && Shift == toolkit::kShiftMask && GUESSFORCE.Checked) {
    PullForce(key);
  } else if (key == Key::ShiftReleased || key == Key::Cancel) {
    // Letting go of SHIFT alone releases the force; without it there is nothing to judge.
    ReleaseForce(key == Key::ShiftReleased && others == 0 ? toolkit::kShiftMask : 0);
  } else if (key == Key::Pick) {
    ReleaseForce(0);
    MovePointer(key);
    const std::optional<sketch::Pointer>& at = eikona.KeyPointer;
    const auto X = static_cast<float>(at->x);
    const auto Y = static_cast<float>(at->y);
    eikona_MouseDown(1, Shift, X, Y);
    eikona_MouseUp(1, Shift, X, Y);
  } else {
    ReleaseForce(0);
    MovePointer(key);
  }
}

void firststep::MovePointer(Key key) {
  double& x = module.PointerX;
  if (const auto direction = DirectionOf(key)) {
    const double moved = x + kAlongTrack * (direction->x + direction->y);
    // In whole steps from 0, so that the tenths stay tenths.
    x = std::clamp(std::round(moved / kAlongTrack) * kAlongTrack, 0.0, kEnd);
  }
  if (key == Key::Home) x = 0.0;
  if (key == Key::End) x = kEnd;
  PutPointerOnTrack();
  eikona.Announce(PlaceText(x, eikona.KeyPointer.Get()->y, 1));
}

void firststep::PutPointerOnTrack() {
  const double x = module.PointerX;
  const double y = track::Height(window::TrackParameters(*this), x);
  eikona.KeyPointer = sketch::Pointer{x, y, x, y};
}

// The pointer stays on a track that the scroll bars have bent. A pulled force stays where it was
// pressed, as it does under the mouse.
void firststep::FollowTrack() {
  if (eikona.KeyPointer.Get() && !module.PullsForce) PutPointerOnTrack();
}

void firststep::PullForce(Key key) {
  if (!module.PullsForce) {
    MovePointer(Key::Pick);
    const sketch::Pointer start = *eikona.KeyPointer.Get();
    eikona_MouseDown(1, toolkit::kShiftMask, static_cast<float>(start.x),
                     static_cast<float>(start.y));
    module.PullsForce = true;
  }
  sketch::Pointer pulled = *eikona.KeyPointer.Get();
  const Direction direction = *DirectionOf(key);
  pulled.tipX = std::clamp(pulled.tipX + kPull * direction.x, -kFarthestTip, kFarthestTip);
  pulled.tipY = std::clamp(pulled.tipY + kPull * direction.y, -kFarthestTip, kFarthestTip);
  eikona.KeyPointer = pulled;
  eikona.Announce("Force " + PlaceText(pulled.tipX - pulled.x, pulled.tipY - pulled.y, 2));
}

void firststep::ReleaseForce(short Shift) {
  if (!module.PullsForce) return;
  const auto X = static_cast<float>(eikona.KeyPointer.Get()->tipX);
  const auto Y = static_cast<float>(eikona.KeyPointer.Get()->tipY);
  DropForce();
  // Another case may have been chosen while the force was pulled.
  if (GUESSFORCE.Checked) eikona_MouseUp(1, Shift, X, Y);
}

// The tip goes back to the point; nothing is judged.
void firststep::DropForce() {
  if (!module.PullsForce) return;
  module.PullsForce = false;
  sketch::Pointer pointer = *eikona.KeyPointer.Get();
  pointer.tipX = pointer.x;
  pointer.tipY = pointer.y;
  eikona.KeyPointer = pointer;
}

}  // namespace app
