#include <gtest/gtest.h>

#include "harness.h"

namespace {

// How much is kept and how much is drawn again, also of a run that erases on the one before. The
// body is on the sketch for all the steps that the records have room for.
TEST(Record, OfALongRunIsShort) {
  for (const int before : {0, 100}) {
    Program p;
    sketch::Sketch& eikona = p.window->eikona;
    p.Scroll({35, 60, 0, 1, 300});
    p.window->Option2.UserClick();
    const int last = before == 0 ? window::PathRecords::kLastStep : 6000;
    for (int step = 0; step < last; ++step) {
      if (step == before) p.window->Command1.UserClick();
      p.Forget();
      p.window->VIMA.UserClick();
    }
    EXPECT_TRUE(eikona.CanRedraw());
    EXPECT_LE(eikona.Drawn().Size(), before == 0 ? 10 : sketch::Record::kMost);
    p.Forget();
    eikona.Redraw();
    EXPECT_LE(p.Operations().size(), 60'000U);
  }
}

// What is too long to be kept is stretched, until the next clear.
TEST(Record, GivesUpWhereItIsTooLong) {
  Program p;
  sketch::Sketch& eikona = p.window->eikona;
  p.Paint(1);
  eikona.Cls();
  eikona.Line(2, 3, 18, 4, {1, 2, 3});
  for (std::size_t i = 1; i < sketch::Record::kMost; ++i) eikona.PSet(1, 1);
  EXPECT_TRUE(eikona.CanRedraw());
  for (int more = 0; more < 2; ++more) {
    eikona.PSet(1, 1);
    eikona.Print("text");
    EXPECT_FALSE(eikona.CanRedraw());
  }

  p.Paint(2);
  const toolkit::Point on = p.Pixel(10, 3.5);
  const auto row = p.painting->Look().Row(static_cast<int>(on.y));
  EXPECT_LT(row[static_cast<int>(on.x)] & 0xff, 128U);
  eikona.Cls();
  EXPECT_TRUE(eikona.CanRedraw());
}

}  // namespace
