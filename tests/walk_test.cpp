#include "walk.h"

#include <gtest/gtest.h>

TEST(Walk, NothingBreaksItInAHundredThousandEvents) {
  const auto seed = std::random_device{}();
  Walk walk(seed);
  for (int event = 0; event < 100000; ++event) {
    ASSERT_EQ(walk.Step(), "") << "event " << event << " of seed " << seed;
  }
}
