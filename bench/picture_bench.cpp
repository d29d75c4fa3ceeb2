#include <QGuiApplication>
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "app/firststep.h"
#include "scenes/parts.h"
#include "toolkit/headless/desktop.h"
#include "toolkit/qt/letters.h"
#include "toolkit/raster/canvas.h"

namespace {

// The program on a headless desktop, drawing on the real canvas of `side` pixels with real letters.
struct Bench {
  explicit Bench(int side) : window(app::Main(desktop)) {
    canvas.Resize({side, side}, 1.0);
    window->eikona.AttachCanvas(&canvas);
    window->Option3.UserClick();
  }
  toolkit::headless::HeadlessDesktop desktop{1440, 1080};
  std::unique_ptr<app::firststep> window;
  toolkit::qt::Letters letters;
  toolkit::raster::RasterCanvas canvas{toolkit::qt::kPacking, letters};
};

// A run that goes out and comes back on the sketch, `steps` long, `pace` steps to a unit of time.
void Run(app::firststep& window, int steps, int pace) {
  window.vimatimi.UserScroll(pace);
  window.arxikives.UserScroll(2);
  window.epitaxyno.UserScroll(-1);
  window.Option2.UserClick();
  window.Command1.UserClick();
  for (int step = 1; step < steps; ++step) window.VIMA.UserClick();
}

// From the change of a scroll bar's value to the finished picture, over all frequencies.
void FactorsScene(benchmark::State& state) {
  Bench bench(static_cast<int>(state.range(0)));
  int value = 0;
  for ([[maybe_unused]] auto _ : state) bench.window->syxnotikamp.UserScroll(1 + value++ % 60);
}
BENCHMARK(FactorsScene)->Arg(810)->Arg(1620)->Unit(benchmark::kMicrosecond);

// One step of the run, at step N.
void EvolutionStep(benchmark::State& state) {
  Bench bench(810);
  app::firststep& w = *bench.window;
  const auto N = static_cast<int>(state.range(0));
  Run(w, N, static_cast<int>(state.range(1)));
  const double time = w.module.ElapsedTime;
  for ([[maybe_unused]] auto _ : state) {
    w.module.StepCount = N - 1;
    w.module.ElapsedTime = time;
    w.VIMA.UserClick();
  }
}
BENCHMARK(EvolutionStep)->ArgsProduct({{100, 12500}, {300, 50, 10}})->Unit(benchmark::kMicrosecond);

// The vectors and the circle at a picked point whose radius of curvature is 10^range sketch units.
void PointScene(benchmark::State& state) {
  Bench bench(810);
  app::firststep& w = *bench.window;
  w.DYNAMEISDIAFORES.UserClick();
  const toolkit::Point place{6.0 / 20.0 * 809.0, 8.0 / 20.0 * 809.0};
  track::TrackPoint point{};
  point.x = 6;
  point.y = 2;
  point.normal = {0.6, 0.8};
  point.radius = std::pow(10.0, static_cast<double>(state.range(0)));
  for ([[maybe_unused]] auto _ : state) {
    w.eikona.UserMouseUp({1, 0, place});
    scenes::DrawCircleOfCurvature(w.eikona, point);
  }
}
BENCHMARK(PointScene)->DenseRange(-1, 15, 2)->Unit(benchmark::kMicrosecond);

// The picture of a run of N steps drawn again at another density: alone on the sketch, or over
// another picture, which keeps what each step has erased.
void Redraw(benchmark::State& state) {
  Bench bench(810);
  app::firststep& w = *bench.window;
  Run(w, 2, 300);
  if (state.range(1) != 0) {
    w.DYNAMEISDIAFORES.UserClick();
    w.Command1.UserClick();
  }
  for (int step = 2; step < state.range(0); ++step) w.VIMA.UserClick();
  double density = 1.0;
  for ([[maybe_unused]] auto _ : state) {
    density = 3.0 - density;
    bench.canvas.Resize({1620, 1620}, density);
    w.eikona.Redraw();
  }
}
BENCHMARK(Redraw)->ArgsProduct({{100, 8000, 12500}, {0, 1}})->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
