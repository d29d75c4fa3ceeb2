#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "harness.h"
#include "toolkit/raster/pixels.h"

// Pictures that are compared pixel by pixel, by a hash. A change of a picture shows here, whatever
// has caused it.

// A user's way to a picture.
struct PictureWay {
  const char* name;
  void (*go)(Program&);
};

inline void Step(Program& p, int times) {
  while (times-- > 0) p.window->VIMA.UserClick();
}

// Keys on the sketch. By the mouse a pick would not be the same to the last digit in every window.
inline void Type(Program& p, toolkit::Key key, int times = 1, int shift = 0) {
  while (times-- > 0) p.window->eikona.UserKey(key, shift);
}

inline const std::vector<PictureWay> kPictureWays = {
    {"opening", [](Program&) {}},
    {"factors", [](Program& p) { p.window->Option3.UserClick(); }},
    {"factors, the body stops",
     [](Program& p) {
       p.Scroll({20, 40, -4});
     }},
    {"point",
     [](Program& p) {
       p.window->DYNAMEISDIAFORES.UserClick();
       Type(p, toolkit::Key::Right, 8);
       Type(p, toolkit::Key::Pick);
     }},
    {"judgement",
     [](Program& p) {
       p.window->GUESSFORCE.UserClick();
       Type(p, toolkit::Key::Right, 14, toolkit::kShiftMask);
       Type(p, toolkit::Key::Up, 4, toolkit::kShiftMask);
       Type(p, toolkit::Key::ShiftReleased);
     }},
    {"run",
     [](Program& p) {
       p.Scroll({20, 15, 2, 1, 20});
       p.window->Option2.UserClick();
       Step(p, 130);
     }},
    {"run over another, with other marks",
     [](Program& p) {
       p.Scroll({20, 15, 20, 3, 20});
       p.window->Option2.UserClick();
       Step(p, 40);
       p.Scroll({30});
       p.window->Option2.UserClick();
       Step(p, 50);
       p.Scroll({30, 15, 20, 3, 11});
       Step(p, 30);
       p.window->Command1.UserClick();
       Step(p, 20);
     }},
};

// FNV-1a over the components of all pixels, row by row: the same for every packing.
inline std::uint64_t HashOf(const toolkit::raster::Pixels& picture,
                            const toolkit::raster::Packing& packing) {
  std::uint64_t hash = 0xcbf29ce484222325U;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      for (const int shift : {packing.red, packing.green, packing.blue}) {
        hash = (hash ^ (picture.Row(y)[x] >> shift & 0xffU)) * 0x100000001b3U;
      }
    }
  }
  return hash;
}
