#include <cstdio>
#include <cstdlib>

#include "walk.h"

// The random walk for as long as one likes: soak EVENTS [SEED].
int main(int argc, char** argv) {
  const long long events = argc > 1 ? std::atoll(argv[1]) : 1000000;
  const unsigned long seed = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1;
  Walk walk(seed);
  for (long long event = 0; event < events; ++event) {
    const std::string fault = walk.Step();
    if (!fault.empty()) {
      std::printf("event %lld of seed %lu: %s\n", event, seed, fault.c_str());
      return 1;
    }
  }
  std::printf("%lld events of seed %lu: nothing broke\n", events, seed);
  return 0;
}
