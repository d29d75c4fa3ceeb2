#include <cstdio>
#include <cstdlib>

#include "walk.h"

// The random walk for as long as one likes: soak EVENTS [SEED].
int main(int argc, char** argv) {
  const long long events = argc > 1 ? std::atoll(argv[1]) : 1000000;
  const unsigned long seed = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1;
  const std::string fault = RandomWalk(events, seed);
  std::printf("%s\n", fault.empty() ? "nothing broke" : fault.c_str());
  return fault.empty() ? 0 : 1;
}
