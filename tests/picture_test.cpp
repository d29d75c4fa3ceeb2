#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <map>

#include "pictures.h"

namespace {

// The hashes of tests/pictures.txt by name and density. After a wanted change, look at the picture
// in the program and put the line that the test prints in place of the old one.
std::map<std::string, std::string> Known() {
  std::map<std::string, std::string> known;
  std::ifstream file(FIRSTSTEP_PICTURES);
  for (std::string hash, name; file >> hash && std::getline(file >> std::ws, name);) {
    known[name] = hash;
  }
  return known;
}

std::string Shown(Program& program) {
  std::ostringstream hash;
  const std::uint64_t number = HashOf(program.painting->Look(), {16, 8, 0});
  hash << std::hex << std::setfill('0') << std::setw(16) << number;
  return hash.str();
}

std::string DrawnAt(double density, const PictureWay& way, int more = 0) {
  Program program;
  program.Paint(density);
  way.go(program);
  Step(program, more);
  return Shown(program);
}

TEST(Pictures, AreTheSameOnEveryMachine) {
  auto known = Known();
  EXPECT_EQ(known.size(), 3 * kPictureWays.size());
  for (const PictureWay& way : kPictureWays) {
    for (const std::string density : {"1", "1.5", "2"}) {
      const std::string name = way.name + (" at " + density);
      const std::string hash = DrawnAt(std::stod(density), way);
      EXPECT_TRUE(hash == known[name]) << "Drawn now:\n" << hash << ' ' << name;
    }
  }
}

// A run leaves out dots that would change no pixel; with all of them the picture is the same.
TEST(Pictures, OfARunHaveEveryDot) {
  for (const double density : {1.0, 1.5, 2.0}) {
    Program program;
    program.Paint(density);
    program.Scroll({35, 40, 0, 1, 300});
    program.window->Option2.UserClick();
    Step(program, 900);
    const std::string shown = Shown(program);
    const window::PathRecords& path = program.window->module.path;
    for (int i = 50; i < 850; ++i) {  // the ends have red marks
      program.window->eikona.PSet(path.PathX[i], path.PathY[i]);
    }
    EXPECT_EQ(Shown(program), shown) << density;
  }
}

// Drawn at one density and shown at another, as after a move to another screen; and what is drawn
// over it afterwards is as if it had always been there.
TEST(Pictures, AreAsSharpAfterAChangeOfDensity) {
  for (const PictureWay& way : kPictureWays) {
    SCOPED_TRACE(way.name);
    Program program;
    program.Paint(1);
    way.go(program);
    for (const double density : {2.0, 1.5}) {
      program.Paint(density);
      EXPECT_EQ(Shown(program), DrawnAt(density, way));
    }
    Step(program, 2);
    EXPECT_EQ(Shown(program), DrawnAt(1.5, way, 2));
  }
}

}  // namespace
