#include <gtest/gtest.h>

#include <random>

#include "harness.h"

namespace {

// A picked point and what its picture shows.
struct Picked : Motion {
  static constexpr Colour kBlue{5, 150, 255}, kShape{0, 250, 10}, kSpeed{150, 200, 50};

  Picked(int amplitude, int degrees, int speed, int acceleration, bool guess)
      : Motion(amplitude, degrees, speed, acceleration), guessing(guess) {
    (guess ? window->GUESSFORCE : window->DYNAMEISDIAFORES).UserClick();
  }
  bool guessing, arrives = false;

  void Legend(Colour colour, int width, double tailX, double tailY, double top, const char* text) {
    arrows.push_back({tailX, tailY, 1, 0, 0, colour, width});
    Text(tailX < 1 ? 2 : 15, top, text);
  }
  // Picks the point, `off` above the track, and looks at the whole picture.
  void Pick(float picked, double off = 0, int shift = 0, int button = 1) {
    SCOPED_TRACE(::testing::PrintToString(std::tuple(A, w, v0, at, picked)));
    const double square = v0 * v0 + 2 * at * Length(picked, A);
    arrives = square >= 0;
    MoveTo(picked, arrives ? std::sqrt(square) : 0);
    if (!guessing) Press(x, y + off, shift, button);
    Forget();
    guessing ? Press(x, y + off, shift, button) : Release(x, y + off, shift, button);
    ASSERT_TRUE(Count(Kind::Clear) == 1 && window->module.PointOnTrack);
    EXPECT_EQ(Operations().size() == 402, !arrives);  // the track alone
    if (!arrives) return;
    EXPECT_TRUE(Count(Kind::Dot) == 402 && Count(Kind::Circle) == (curvature != 0));
    Arrow(v, 0, kRed);
    Arrow(0, A * an / 4, kBlue);
    Arrow(A * at / 4, 0, {5, 150, 250});
    if (guessing && v > 0) Arrow(-3.5, 0, {155, 155, 0}, 3);
    if (guessing) Legend({155, 155, 0}, 3, 0.2, 9.3, 9.8, "FRICTION");
    Legend(kRed, 1, 14, -9.1, -9.1, "VELOCITY");
    Legend(kBlue, 1, 14, -8.1, -8.1, "ACCELERATION");
    EXPECT_EQ(FirstWrong(2e-5 * (1 + v)), -1);
    const auto& m = window->module;
    EXPECT_LT(std::hypot(m.VelocityX - v * cosine, m.VelocityY - v * sine), 1e-5 * (1 + v));
    EXPECT_LT(std::hypot(Dots().back().x - x, Dots().back().y - y), 1e-5);
    EXPECT_TRUE(window->Text1.Text.Get().starts_with(guessing ? "Click on" : "The centri"));
    if (const Operation& o = Operations()[402]; curvature != 0) {
      // It touches the track in the point, on the side to which the track bends.
      const double side = std::copysign(1, curvature), bend = o.radius / Unit() * side * curvature;
      EXPECT_LT(std::hypot(o.from.x - Pixel(x, y).x, o.from.y - Pixel(x, y).y), 1e-3);
      EXPECT_LT(std::hypot(o.to.x + side * sine, o.to.y + side * cosine, bend - 1), 1e-5);
    }
    y += off;
  }

  // Pulls a force, by its parts along the track and to its left, and looks at the judgement.
  void Pull(double along, double left, int shift = 1, int button = 1) {
    SCOPED_TRACE(::testing::Message() << along << ' ' << left);
    Forget();
    const Mark force = Vector(along, left);
    Release(x + force.vx, y + force.vy, shift, button);
    EXPECT_EQ(Operations().empty(), !arrives || shift != 1);
    if (Operations().empty()) return;
    const double friction = v > 0 ? -3.5 : 0;
    const bool wrong = (along + friction) * at < 0 || along * friction > 0, right = left * an > 0;
    Arrow(along, left, {0, 0, 255});
    if (wrong) Text(2, 9, "FORCE: INCORRECT FOR THE TANGENTIAL ACCELERATION");
    const std::string has = right ? "HAS THE CORRECT" : "HAS WRONG";
    Text(2, 8, "FORCE: " + has + " DIRECTION FOR THE SHAPE OF THE CURVE");
    if (!right && an != 0) {
      Arrow(0, A * an / 4, {0, 150, 250}, 3);
      Legend({25, 50, 250}, 3, 0.2, 6.8, 7, "DIRECTION OF EXTRA FORCE FOR CENTRIPETAL");
    }
    // With what is still needed, the force and friction explain the motion.
    if (an != 0) Arrow(0, an - left, kShape, 2);
    if (v > 0 || at != 0) Arrow(A * at / 4 - friction - along, 0, kSpeed, 2);
    Legend(kShape, 2, 0.2, -8.5, -8, "EXTRA NEEDED FORCE FOR SHAPE");
    Legend(kSpeed, 2, 0.2, -9.5, -9, "EXTRA NEEDED FORCE FOR TANGENTIAL ACC.");
    EXPECT_EQ(FirstWrong(2e-5 * (1 + v)), -1);
  }
};

// A body that flies, one that stands still, one whose arrows are too short, ones that do not always
// arrive; a crest, a trough, slopes, the origin, beside and on a point of inflection.
TEST(Interaction, ShowsAndJudgesWherePicked) {
  const int bars[][4] = {{20, 15, 3, 20},   {20, 15, 3, 0}, {20, 15, 0, 20}, {20, 15, 0, 0},
                         {20, 15, 15, -20}, {1, 7, 2, 1},   {35, 60, 4, -20}};
  const double forces[][2] = {{5, 1},     {5, -1},     {2, 1},       {-2, -1}, {0, 0},
                              {3.4, 0.5}, {3.6, -0.5}, {0.01, 0.01}, {30, -40}};
  for (const auto& [amplitude, degrees, speed, acceleration] : bars) {
    Picked circles(amplitude, degrees, speed, acceleration, false),
        p(amplitude, degrees, speed, acceleration, true);
    for (const float x : {6.0F, 18.0F, 3.0F, 10.0F, 0.0F, 12.0009765625F, 12.0F, 20.0F}) {
      for (const double off : {0.0, 0.09, -0.09}) {
        circles.Pick(x, off, 7, 4);
        p.Pick(x, off);
        for (const auto& [along, left] : forces) p.Pull(along, left);
      }
    }
  }
}

// The press is a float: the one that is a little more than 0.1, and the next below.
TEST(Interaction, RejectsPointsOffTheTrack) {
  const double reach = 0.1F, inside = reach - 0x1p-27;
  Picked p(20, 15, 3, 20, true);
  for (const double y : {reach, -reach, inside, -inside, 2.0}) {
    const bool accepted = std::abs(y) == inside;
    p.Forget(), p.Press(0, y);
    EXPECT_EQ(p.window->module.PointOnTrack, accepted) << y;
    EXPECT_EQ(p.Count(Program::Kind::Dot), accepted ? 402 : 804);
    if (!accepted) p.Pull(5, -1);
  }
}

// A second button pressed elsewhere begins anew; any release with SHIFT alone is judged from there.
TEST(Interaction, JudgesAnywhere) {
  std::mt19937 random(4);
  const auto any = [&](int a, int b) { return std::uniform_int_distribution(a, b)(random); };
  for (int i = 0; i < 300 && !HasFailure(); ++i) {
    Picked p(any(1, 35), any(1, 60), any(0, 15), any(-35, 35), true);
    for (const int button : {1, any(0, 4)}) {
      p.Pick(static_cast<float>(any(0, 2000)) / 100, any(-9, 9) / 100.0, any(0, 7), button);
    }
    p.Pull(any(-90, 90) / 10.0 + 0.03, any(-90, 90) / 10.0 + 0.03, i % 3 > 0 ? 1 : any(0, 7),
           any(0, 4));
  }
}

// Worked out by hand: at the crest friction points left, the acceleration right and down; in the
// trough right and up.
TEST(Interaction, GivesTheVerdictsWorkedOutByHand) {
  const struct {
    double x, y, along, up;
    bool wrongTangential, rightShape;
  } table[] = {{6, 2, 5, -0.5, false, true}, {6, 2, 5, 0.5, false, false},
               {6, 2, 2, -1, true, true},    {6, 2, -2, -1, true, true},
               {6, 2, -2, 1, true, false},   {6, 2, 0, -3, true, true},
               {6, 2, 0, 3, true, false},    {6, 2, 0, 0, true, false},
               {18, -2, 5, 1, false, true},  {18, -2, 5, -1, false, false}};
  for (const auto& row : table) {
    Program p;
    p.window->GUESSFORCE.UserClick();
    p.Press(row.x, row.y), p.Forget(), p.Release(row.x + row.along, row.y + row.up, 1);
    std::string said;
    for (const auto& text : p.Texts()) said += text.text;
    const auto has = [&](const char* verdict) { return said.find(verdict) != std::string::npos; };
    EXPECT_EQ(has("INCORRECT FOR THE TANGENTIAL"), row.wrongTangential) << row.along << row.up;
    EXPECT_EQ(has("CORRECT DIRECTION FOR THE SHAPE"), row.rightShape) << row.along << row.up;
    EXPECT_EQ(has("WRONG DIRECTION FOR THE SHAPE"), !row.rightShape) << row.along << row.up;
  }
}

}  // namespace
