#include "walk.h"

#include <gtest/gtest.h>

#include <random>

TEST(Walk, NothingBreaksItInAHundredThousandEvents) {
  EXPECT_EQ(RandomWalk(100000, std::random_device{}()), "");
}
