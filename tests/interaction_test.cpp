#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "harness.h"

namespace {

using Mark = Program::Mark;
using Kind = Program::Kind;
using toolkit::Colour;
constexpr Colour kRed{255, 0, 0}, kBlue{5, 150, 255}, kTangent{5, 150, 250}, kBrown{155, 155, 0};
constexpr Colour kForce{0, 0, 255}, kShape{0, 250, 10}, kSpeed{150, 200, 50};
constexpr Colour kCentral{0, 150, 250}, kCentralLegend{25, 50, 250};

// A picked point and what its picture shows, from the curve and the laws of motion alone.
struct Picked : Program {
  Picked(int amplitude, int degrees, int speed, int acceleration, bool guess)
      : A(amplitude / 10.0), w(degrees * std::numbers::pi / 180), v0(speed), guessing(guess) {
    window->platosvalue.UserScroll(amplitude);
    window->syxnotikamp.UserScroll(degrees);
    window->arxikives.UserScroll(speed);
    window->epitaxyno.UserScroll(acceleration);
    at = acceleration / 10.0;
    (guess ? window->GUESSFORCE : window->DYNAMEISDIAFORES).UserClick();
  }
  double A, w, v0, at = 0, x = 0, y = 0, cosine = 0, sine = 0;
  double radius = 0, square = 0, v = 0, an = 0;
  bool guessing;

  void Look(double picked) {
    x = static_cast<double>(static_cast<float>(picked));
    y = A * std::sin(w * x);
    const double slope = A * w * std::cos(w * x), bend = -w * w * y;
    cosine = 1 / std::hypot(1, slope);
    sine = slope * cosine;
    radius = bend == 0 ? 0 : 1 / (bend * std::pow(cosine, 3));
    double s = 0;  // the integral of sqrt(1 + A^2 cos^2 u) / w by Simpson's rule
    for (int i = 0; i <= 600; ++i) {
      const int weight = i == 0 || i == 600 ? 1 : 2 + i % 2 * 2;
      s += weight * std::hypot(1, A * std::cos(w * x * i / 600)) * x / 1800;
    }
    square = v0 * v0 + 2 * at * s;
    v = std::sqrt(std::max(square, 0.0));
    an = radius == 0 || std::abs(radius) > 1e15 ? 0 : v * v / radius;
  }
  // Picks the point, `off` above the track, and looks at the whole picture.
  void Pick(double picked, double off = 0, int shift = 0, int button = 1) {
    Look(picked);
    if (!guessing) Press(x, y + off, shift, button);
    Forget();
    guessing ? Press(x, y + off, shift, button) : Release(x, y + off, shift, button);
    CheckPoint();
  }
  void Drag(double along, double left, int shift = 1, int button = 1) {
    Forget();
    y = static_cast<double>(window->module.ForceStartY);
    const Mark force = Vector(along, left, kForce);
    Release(x + force.vx, y + force.vy, shift, button);
  }

  // From its parts along the tangent and along the normal on its left.
  Mark Vector(double a, double n, Colour colour, int width = 1) const {
    return {x, y, a * cosine - n * sine, a * sine + n * cosine, 0, colour, width};
  }
  // What is drawn and printed, except for arrows too short to show.
  void Expect(std::vector<Mark> arrows, const std::string& printed) {
    std::erase_if(arrows, [](const Mark& m) { return std::hypot(m.vx, m.vy) < 0.21773; });
    const std::vector<Mark> got = Arrows();
    ASSERT_EQ(got.size(), arrows.size());
    for (std::size_t i = 0; i < got.size(); ++i) {
      const Mark &g = got[i], &m = arrows[i];
      EXPECT_NEAR(std::hypot(g.x - m.x, g.y - m.y), 0, 1e-5) << i;
      EXPECT_NEAR(std::hypot(g.vx - m.vx, g.vy - m.vy), 0, 2e-5 * (1 + v)) << i;
      EXPECT_TRUE(g.colour == m.colour && g.width == m.width) << i;
    }
    std::ostringstream texts;
    for (const Mark& m : Texts()) texts << m.x << ' ' << m.y << ' ' << m.text << '|';
    EXPECT_EQ(texts.str(), printed);
    const auto& module = window->module;
    EXPECT_NEAR(std::hypot(module.VelocityX - v * cosine, module.VelocityY - v * sine), 0,
                1e-5 * (1 + v));
  }

  void CheckPoint() {
    EXPECT_EQ(Count(Kind::Clear), 1);
    EXPECT_TRUE(window->module.PointOnTrack);
    ASSERT_EQ(Count(Kind::Dot), square < 0 ? 401 : 402);
    EXPECT_EQ(Count(Kind::Circle), square < 0 || radius == 0 ? 0 : 1);
    if (square < 0) return Expect({}, "");
    EXPECT_NEAR(std::hypot(Dots().back().x - x, Dots().back().y - y), 0, 1e-5);
    std::vector<Mark> arrows{Vector(v, 0, kRed), Vector(0, A * an / 4, kBlue),
                             Vector(A * at / 4, 0, kTangent)};
    if (guessing && v > 0) arrows.push_back(Vector(-3.5, 0, kBrown, 3));
    if (guessing) arrows.push_back({0.2, 9.3, 1, 0, 0, kBrown, 3});
    arrows.push_back({14, -9.1, 1, 0, 0, kRed});
    arrows.push_back({14, -8.1, 1, 0, 0, kBlue});
    Expect(arrows, (guessing ? std::string("2 9.8 FRICTION|") : "") +
                       "15 -9.1 VELOCITY|15 -8.1 ACCELERATION|");
    const std::string text = window->Text1.Text;
    EXPECT_EQ(text.find(guessing ? "Click on the diagram" : "The centripetal acceleration is"), 0U);
    for (const Operation& o : Operations()) {
      if (o.kind != Kind::Circle) continue;
      EXPECT_TRUE(o.pen.colour == (Colour{250, 0, 150}) && o.pen.dotted && o.pen.width == 1);
      EXPECT_NEAR(o.radius / Unit() / std::abs(radius), 1, 1e-5);
      // It passes through the point and its centre lies on the side to which the track bends.
      const double dx = Pixel(x, y).x - o.from.x, dy = Pixel(x, y).y - o.from.y;
      EXPECT_NEAR((dx * dx + dy * dy) / (2 * o.radius) - dx * o.to.x - dy * o.to.y, 0, 1e-3);
      const double side = radius < 0 ? -1 : 1;
      EXPECT_NEAR(std::hypot(o.to.x + side * sine, o.to.y + side * cosine), 0, 1e-5);
    }
  }

  void CheckJudgement(double along, double left, bool wrong, bool right) {
    const double inward = an < 0 ? -1 : 1, friction = v > 0 ? -3.5 : 0;
    std::vector<Mark> arrows{Vector(along, left, kForce)};
    std::string texts = wrong ? "2 9 FORCE: INCORRECT FOR THE TANGENTIAL ACCELERATION|" : "";
    texts += right ? "2 8 FORCE: HAS THE CORRECT DIRECTION FOR THE SHAPE OF THE CURVE|"
                   : "2 8 FORCE: HAS WRONG DIRECTION FOR THE SHAPE OF THE CURVE|";
    if (!right && an != 0) {
      arrows.push_back(Vector(0, A * an / 4, kCentral, 3));
      arrows.push_back({0.2, 6.8, 1, 0, 0, kCentralLegend, 3});
      texts += "2 7 DIRECTION OF EXTRA FORCE FOR CENTRIPETAL|";
    }
    if (an != 0) arrows.push_back(Vector(0, an - left, kShape, 2));
    const bool moves = v > 0 || at != 0;
    if (moves) arrows.push_back(Vector(A * at / 4 - friction - along, 0, kSpeed, 2));
    arrows.push_back({0.2, -8.5, 1, 0, 0, kShape, 2});
    arrows.push_back({0.2, -9.5, 1, 0, 0, kSpeed, 2});
    Expect(arrows, texts +
                       "2 -8 EXTRA NEEDED FORCE FOR SHAPE|"
                       "2 -9 EXTRA NEEDED FORCE FOR TANGENTIAL ACC.|");
    // With what is still needed the force explains the motion; what is too short to show is small.
    double forward = along + friction, centripetal = left * inward;
    double unseenForward = 0.218, unseenCentripetal = 0.218;
    for (const Mark& m : Arrows()) {
      if (m.y < -8 || m.width != 2) continue;
      (m.colour == kShape ? unseenCentripetal : unseenForward) = 1e-4 * (1 + v);
      forward += m.vx * cosine + m.vy * sine;
      centripetal += (m.vy * cosine - m.vx * sine) * inward;
    }
    if (moves) forward -= A * at / 4;
    EXPECT_LT(moves ? std::abs(forward) : 0, unseenForward);
    EXPECT_LT(an != 0 ? std::abs(centripetal - std::abs(an)) : 0, unseenCentripetal);
  }
};

// A crest, a trough, slopes, the origin, beside and on a point of inflection; a body that flies,
// one that stands still, one whose arrows are too short, one that does not always arrive.
TEST(Interaction, PicksAPointInBothModes) {
  for (const auto& [amplitude, degrees, speed, acceleration] :
       {std::array{20, 15, 3, 20}, {20, 15, 0, 0}, {1, 7, 2, 1}, {35, 60, 4, -20}}) {
    for (const double x : {6.0, 18.0, 3.0, 10.0, 0.0, 12.0009765625, 12.0, 20.0}) {
      for (const double off : {0.0, 0.09, -0.09}) {
        SCOPED_TRACE(::testing::Message() << amplitude << ' ' << x << ' ' << off);
        Picked(amplitude, degrees, speed, acceleration, false).Pick(x, off);
        Picked p(amplitude, degrees, speed, acceleration, true);
        p.Pick(x, off);
        if (p.square < 0) p.Drag(5, -1);
        EXPECT_EQ(p.Operations().empty(), p.square < 0);
      }
    }
  }
}

TEST(Interaction, RejectsPointsOffTheTrack) {
  // The press is a float: the one that is a little more than 0.1, and the next below.
  const double reach = static_cast<double>(0.1F), inside = reach - 0x1p-27;
  for (const bool guess : {false, true}) {
    Picked p(20, 15, 3, 20, guess);
    for (const auto& [x, y] : {std::array{0.0, reach},
                               {0.0, -reach},
                               {0.0, inside},
                               {0.0, -inside},
                               {6.0, 2.11},
                               {6.0, 1.89},
                               {6.0, -2.0}}) {
      const bool accepted = std::abs(y) == inside;
      p.Pick(18);
      const double before = p.window->module.VelocityX;
      p.Forget();
      guess ? p.Press(x, y) : p.Release(x, y);
      EXPECT_EQ(p.window->module.PointOnTrack, accepted) << x << ' ' << y;
      EXPECT_EQ(p.window->module.VelocityX == before, !accepted);
      EXPECT_EQ(p.window->module.ForceStartY, guess ? static_cast<float>(y) : 0);
      EXPECT_EQ(p.Count(Kind::Circle), accepted ? 0 : 2);
      if (accepted) continue;
      if (guess) p.Drag(5, -1);
      EXPECT_EQ(p.Operations().empty(), guess);
    }
  }
}

TEST(Interaction, ChecksDecideAndButtonsDoNot) {
  for (const int button : {1, 2, 4, 3, 0}) {
    Picked p(20, 15, 3, 20, false);
    p.Pick(6, 0, 7, button);
    p.guessing = true;
    for (const bool curvature : {true, false}) {
      if (!curvature) p.window->campyles.UserClick();
      p.Forget();
      p.Press(6, 2, 1, button);
      if (!curvature) p.Release(6, 2, 1, button);
      EXPECT_TRUE(p.Operations().empty());
      EXPECT_EQ(std::string(p.window->Text1.Text),
                "Centripetal towards the concave, also there is a tangential (if V not constant) "
                "and the circles are drawn with the corresponding radii of curvature.");
    }
    p.window->GUESSFORCE.UserClick();
    p.Pick(6, 0, 6, button);
    for (int shift = 0; shift < 8; ++shift) {
      p.Drag(5, -1, shift, button);
      EXPECT_EQ(p.Operations().empty(), shift != 1) << shift;
      if (shift == 1) p.CheckJudgement(5, -1, false, true);
    }
    // A second button pressed elsewhere begins anew; either release is then judged from there.
    p.Pick(18, 0, 0, 1);
    p.Pick(6, 0, 0, 2);
    for (const int released : {1, 2}) {
      p.Drag(5, -1, 1, released);
      p.CheckJudgement(5, -1, false, true);
    }
  }
}

// Forces by their parts along the track and to its left. Friction is 3.5: with at > 0 it takes more
// than that forwards, with at < 0 less; the track bends right before x = 12 and left after it.
TEST(Interaction, JudgesAsWorkedOutByHand) {
  struct Case {
    int speed, acceleration;
    double x, along, left;
    bool wrong, right;
  };
  for (const Case& c : {Case{3, 20, 6, 5, -1, false, true},  {3, 20, 6, 5, 1, false, false},
                        {3, 20, 6, 2, -1, true, true},       {3, 20, 6, -2, -1, true, true},
                        {3, 20, 6, 0, 0, true, false},       {3, 20, 6, 30, -40, false, true},
                        {3, 20, 18, 0.01, 0.01, true, true}, {3, 20, 18, 0, 2, true, true},
                        {3, 20, 18, 0, -2, true, false},     {3, 20, 15, 4, 0.3, false, true},
                        {3, 20, 3, 0, -2, true, true},       {3, 20, 3, 3.6, -0.5, false, true},
                        {3, 20, 3, 3.4, 0.5, true, false},   {3, 20, 15, -4, -0.3, true, false},
                        {3, 0, 6, 1, -1, false, true},       {3, 0, 6, -1, 1, true, false},
                        {3, 0, 6, 0, 0, false, false},       {15, -20, 18, 0, 0, false, false},
                        {15, -20, 18, 3.4, 1, false, true},  {15, -20, 18, 3.6, 1, true, true},
                        {15, -20, 18, -0.1, 1, true, true},  {15, -20, 3, 1, 1, false, false},
                        {0, 0, 6, 2, -1, false, false},      {0, 0, 6, -2, 1, false, false},
                        {3, 20, 0, 5, 1, false, false},      {3, 20, 0, -5, -1, true, false},
                        {0, 20, 0, 0.5, 0.3, false, false},  {0, 20, 0, -1, 0.3, true, false},
                        {3, 20, 12, 5, 1, false, false}}) {
    SCOPED_TRACE(::testing::Message() << c.speed << ' ' << c.x << ": " << c.along << ' ' << c.left);
    Picked p(20, 15, c.speed, c.acceleration, true);
    p.Pick(c.x);
    p.Drag(c.along, c.left);
    p.CheckJudgement(c.along, c.left, c.wrong, c.right);
  }
}

TEST(Interaction, ExtraForcesExplainTheMotionAnywhere) {
  std::mt19937 random(4);
  const auto any = [&](double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(random);
  };
  const auto whole = [&](int from, int to) { return static_cast<int>(any(from, to + 1)); };
  for (int i = 0; i < 200 && !HasFailure(); ++i) {
    Picked p(whole(1, 35), whole(1, 60), whole(0, 15), whole(0, 70) - 35, true);
    p.Pick(any(0, 20), any(-0.09, 0.09));
    const double a = any(-9, 9), n = any(-9, 9), f = p.v > 0 ? -3.5 : 0;
    p.Drag(a, n);
    EXPECT_EQ(p.Operations().empty(), p.square < 0);
    if (p.square >= 0) p.CheckJudgement(a, n, (a + f) * p.at < 0 || a * f > 0, n * p.an > 0);
  }
}

}  // namespace
