#include "app/firststep.h"
#include "interaction/judgement.h"
#include "interaction/point_scene.h"

namespace app {

void firststep::eikona_MouseDown(short /*Button*/, short /*Shift*/, float X, float Y) {
  DropForce();
  if (GUESSFORCE.Checked) {
    module.ForceStartX = X;
    module.ForceStartY = Y;
    interaction::DrawPointVectors(*this, module.ForceStartX, module.ForceStartY);
  } else {
    Text1.Text =
        "Centripetal towards the concave, also there is a tangential (if V not constant) and the "
        "circles are drawn with the corresponding radii of curvature.";
  }
}

void firststep::eikona_MouseUp(short /*Button*/, short Shift, float X, float Y) {
  if (DYNAMEISDIAFORES.Checked) {
    window::StandardScale(eikona);
    interaction::DrawPointVectors(*this, X, Y);
  } else if (GUESSFORCE.Checked && Shift == toolkit::kShiftMask && module.PointOnTrack) {
    interaction::JudgeForce(*this, X, Y);
  }
}

toolkit::Cursor firststep::eikona_Cursor(float X, float Y, bool pressed) const {
  using toolkit::Cursor;
  if (!DYNAMEISDIAFORES.Checked && !GUESSFORCE.Checked) return Cursor::Arrow;
  if (GUESSFORCE.Checked && pressed && module.PointOnTrack) return Cursor::ClosedHand;
  const bool onTrack = interaction::IsOnTrack(window::TrackParameters(*this), {X, Y});
  return onTrack ? Cursor::PointingHand : Cursor::Cross;
}

}  // namespace app
