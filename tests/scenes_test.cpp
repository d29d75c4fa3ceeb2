#include <gtest/gtest.h>

#include "harness.h"

namespace {

struct Scene : Motion {
  using Motion::Motion;
  const char* page = "before";  // how the explanation begins

  void ExpectFactors() {
    for (int i = 0; i <= 400; ++i) {
      if (!ArriveAt(i / 20.0)) return;
      Dot();
      if (i % 28 != 0) continue;
      Arrow(v, 0, kRed);
      Arrow(0, A * an / 4, kBlue, 2);
      Arrow(A * at / 4, A * an / 4, {0, 0, 0});
    }
    page = "The centripetal acceleration has";
    Legend(kRed, 1, {9, -9.1}, {10, -9.1}, "VELOCITY");
    Legend(kBlue, 1, {9, -8.1}, {10, -8.1}, "CENTRIPETAL ACCELERATION");
    Legend({0, 0, 0}, 1, {9, -7.1}, {10, -7.1}, "TOTAL ACCELERATION");
  }
  void ExpectCurvature(int width) {
    Track(width);
    for (const double phase : {kPi / 2, 3 * kPi / 2}) {
      if (!ArriveAt(phase / w)) return;
      PointOfTrack(width);
    }
    page = "The centripetal acceleration is";
    Legend(kRed, width, {10, -9.1}, {10, -9.1}, "VELOCITY");
    Legend(kBlue, width, {10, -8.1}, {10, -8.1}, "CENTRIPETAL ACCELERATION");
  }
};

// No tangential acceleration, no speed, a body that stops at once, on the way, between crest and
// trough, the ends of amplitude and frequency. The curvature keeps the line width that it finds.
TEST(Scenes, ShowWhatTheFormulasSay) {
  const int bars[][4] = {{20, 15, 3, 20},  {20, 15, 0, 0},    {20, 15, 9, -20},
                         {20, 15, 0, -35}, {1, 1, 15, 35},    {35, 60, 15, 35},
                         {35, 1, 7, -3},   {20, 10, 15, -35}, {1, 17, 6, 0}};
  for (const auto& [amplitude, degrees, speed, acceleration] : bars) {
    for (const int width : {1, 3}) {
      Scene scene(amplitude, degrees, speed, acceleration);
      app::firststep& w = *scene.window;
      w.Text1.Text = "before";
      w.eikona.DrawWidth = width;
      scene.Forget();
      width == 1 ? w.Option3.UserClick() : w.DYNAMEISDIAFORES.UserClick();
      width == 1 ? scene.ExpectFactors() : scene.ExpectCurvature(width);
      EXPECT_EQ(scene.Wrong(2e-5), "") << amplitude << ' ' << acceleration << ' ' << width;
      EXPECT_TRUE(w.Text1.Text.Get().starts_with(scene.page));
    }
  }
}

}  // namespace
