#include <gtest/gtest.h>

#include "harness.h"

namespace {

// A picked point and what its picture shows.
struct Picked : Motion {
  static constexpr Colour kFriction{155, 155, 0}, kShape{0, 250, 10}, kSpeed{150, 200, 50};

  Picked(int amplitude, int degrees, int speed, int acceleration, bool guess)
      : Motion(amplitude, degrees, speed, acceleration), guessing(guess) {
    (guess ? window->GUESSFORCE : window->DYNAMEISDIAFORES).UserClick();
  }
  bool guessing, arrives = false;

  void Look() {
    SCOPED_TRACE(::testing::PrintToString(std::tuple(A, w, v0, at, x, guessing)));
    EXPECT_EQ(Wrong(2e-5 * (1 + v)), "");
  }
  // Picks the point, `off` above the track, after a press elsewhere with another button.
  void Pick(float picked, double off, int shift, int button) {
    Press(1, A * std::sin(w));
    Track();
    arrives = ArriveAt(picked);
    Forget();
    guessing ? Press(x, y + off, shift, button) : Release(x, y + off, shift, button);
    EXPECT_TRUE(Count(Kind::Clear) == 1 && window->module.PointOnTrack);
    if (arrives) {
      PointOfTrack();
      if (guessing && v > 0) Arrow(-3.5, 0, kFriction, 3);
      if (guessing) Legend(kFriction, 3, {0.2, 9.3}, {2, 9.8}, "FRICTION");
      Legend(kRed, 1, {14, -9.1}, {15, -9.1}, "VELOCITY");
      Legend(kBlue, 1, {14, -8.1}, {15, -8.1}, "ACCELERATION");
      ExpectVelocity();
      EXPECT_TRUE(window->Text1.Text.Get().starts_with(guessing ? "Click on" : "The centri"));
    }
    Look();
    y += off;
  }

  void ExpectVelocity() {
    const Vector velocity(window->module.VelocityX, window->module.VelocityY);
    EXPECT_LT(std::abs(velocity - v * tangent), 1e-5 * (1 + v));
  }

  // Pulls a force, by its parts along the track and to its left, and looks at the judgement.
  void Pull(double along, double left, int shift = 1, int button = 1) {
    Forget();
    const Vector tip = Vector(x, y) + Vector(along, left) * tangent;
    Release(tip.real(), tip.imag(), shift, button);
    if (arrives && shift == 1) ExpectJudgement(along, left);
    if (arrives) ExpectVelocity();
    EXPECT_EQ(Count(Kind::Clear), 0);
    Look();
  }
  void ExpectJudgement(double along, double left) {
    const double friction = v > 0 ? -3.5 : 0;
    const bool wrong = (along + friction) * at < 0 || along * friction > 0, right = left * an > 0;
    Arrow(along, left, {0, 0, 255});
    if (wrong) Text(2, 9, "FORCE: INCORRECT FOR THE TANGENTIAL ACCELERATION");
    const std::string has = right ? "HAS THE CORRECT" : "HAS WRONG";
    Text(2, 8, "FORCE: " + has + " DIRECTION FOR THE SHAPE OF THE CURVE");
    if (!right && an != 0) {
      Arrow(0, A * an / 4, {0, 150, 250}, 3);
      Legend({25, 50, 250}, 3, {0.2, 6.8}, {2, 7}, "DIRECTION OF EXTRA FORCE FOR CENTRIPETAL");
    }
    // With what is still needed, the force and friction explain the motion.
    if (an != 0) Arrow(0, an - left, kShape, 2);
    if (v > 0 || at != 0) Arrow(A * at / 4 - friction - along, 0, kSpeed, 2);
    Legend(kShape, 2, {0.2, -8.5}, {2, -8}, "EXTRA NEEDED FORCE FOR SHAPE");
    Legend(kSpeed, 2, {0.2, -9.5}, {2, -9}, "EXTRA NEEDED FORCE FOR TANGENTIAL ACC.");
  }
};

// A body that flies, one that stands still, one whose arrows are too short, ones that do not always
// arrive; a crest, a trough, slopes, the origin, beside and on a point of inflection; with any
// button, and any keys but for the force: that is judged with SHIFT alone.
TEST(Interaction, ShowsAndJudgesWherePicked) {
  const int bars[][4] = {{20, 15, 3, 20},   {20, 15, 3, 0}, {20, 15, 0, 20}, {20, 15, 0, 0},
                         {20, 15, 15, -20}, {1, 7, 2, 1},   {35, 60, 4, -20}};
  const double forces[][2] = {{5, 1},     {5, -1},     {2, 1},         {-2, -1},       {0, 0},
                              {3.4, 0.5}, {3.6, -0.5}, {0.13, 0.1746}, {0.13, 0.1747}, {30, -40}};
  for (const auto& [amplitude, degrees, speed, acceleration] : bars) {
    Picked circles(amplitude, degrees, speed, acceleration, false),
        p(amplitude, degrees, speed, acceleration, true);
    for (const float x : {6.0F, 18.0F, 3.0F, 10.0F, 0.0F, 12.0009765625F, 12.0F, 20.0F}) {
      for (int i = 0; i < 8; ++i) {
        circles.Pick(x, 0.03 * (i % 7 - 3), i, 4 - i % 4);
        p.Pick(x, 0.03 * (i % 7 - 3), i, 4 - i % 4);
        for (const auto& [along, left] : forces) p.Pull(along, left, 1, i);
        p.Pull(5, -1, i, 1);
      }
    }
  }
}

// The press is a float: the one that is a little more than 0.1, and the next below.
TEST(Interaction, RejectsPointsOffTheTrack) {
  const double reach = 0.1F, inside = reach - 0x1p-27;
  Picked p(20, 15, 3, 20, true);
  p.Pull(5, -1);  // nothing was picked before
  EXPECT_TRUE(p.Operations().empty());
  for (const double y : {reach, -reach, inside, -inside, 2.0}) {
    const bool accepted = std::abs(y) == inside;
    p.Forget();
    p.Press(0, y);
    EXPECT_EQ(p.window->module.PointOnTrack, accepted) << y;
    EXPECT_EQ(p.Count(Kind::Dot), accepted ? 402 : 804);
    if (!accepted) p.Pull(5, -1);
  }
  p.Forget();
  p.Press(NAN, 0);
  EXPECT_TRUE(p.Operations().empty());
}

// As when a finger turns out to scroll.
TEST(Interaction, APointerTakenAwayReleasesNothing) {
  Picked p(20, 15, 3, 20, true);
  p.Press(0, 0, 1);
  const std::string told = p.window->Text1.Text;
  p.Forget();
  p.window->eikona.UserMouseCancel();
  EXPECT_EQ(p.window->eikona.CursorAt(p.Pixel(0, 0)), toolkit::Cursor::PointingHand);
  EXPECT_TRUE(p.Operations().empty());
  EXPECT_EQ(p.window->Text1.Text.Get(), told);
}

}  // namespace
