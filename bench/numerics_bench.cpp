#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "track/arc_length.h"

namespace {

struct Arguments {
  double phi, k;
};

const std::vector<Arguments>& RandomArguments() {
  static const std::vector<Arguments> all = [] {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> phi(-track::Pi / 2.0, track::Pi / 2.0);
    std::uniform_real_distribution<double> k(0.0, 0.999999);
    std::vector<Arguments> made(1000000);
    for (Arguments& a : made) a = {phi(random), k(random)};
    return made;
  }();
  return all;
}

template <class Integral>
void OverAllArguments(benchmark::State& state, Integral integral) {
  const auto& arguments = RandomArguments();
  for ([[maybe_unused]] auto _ : state) {
    double sum = 0.0;
    for (const Arguments& a : arguments) sum += integral(a);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(arguments.size()));
}

void OurEllipticE(benchmark::State& state) {
  OverAllArguments(state, [](const Arguments& a) { return track::EllipticE(a.phi, a.k); });
}
BENCHMARK(OurEllipticE)->Unit(benchmark::kMillisecond);

void LibraryEllipticE(benchmark::State& state) {
  OverAllArguments(state, [](const Arguments& a) { return std::ellint_2(a.k, a.phi); });
}
BENCHMARK(LibraryEllipticE)->Unit(benchmark::kMillisecond);

void PhaseSearch(benchmark::State& state) {
  const double k = 0.46;
  const double quarter = track::ArcLength(track::Pi / 2.0, k);
  double S = 0.0;
  for ([[maybe_unused]] auto _ : state) {
    S = S > 8.0 ? 0.0 : S + 0.01;
    benchmark::DoNotOptimize(track::PhaseAtArcLength(S, k, quarter));
  }
}
BENCHMARK(PhaseSearch);

}  // namespace
