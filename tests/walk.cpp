#include "walk.h"

#include <random>

#include "harness.h"
#include "track/arc_length.h"
#include "track/carlson.h"

namespace {

// A picture of the run at its end has 12,501 dots; the others have some hundred operations.
constexpr std::size_t kMostOperations = 15000;
// 401 samples with two integrals each are the most that a handler has to do.
constexpr std::uint64_t kMostEvaluations = 1200;

bool Finite(const std::vector<double>& values) {
  return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

struct Walk : Program {
  explicit Walk(std::mt19937_64& source)
      : Program(static_cast<int>(320 + source() % 7361), static_cast<int>(200 + source() % 4121)),
        random(source) {}

  std::mt19937_64& random;
  app::firststep& w = *window;
  bool waited = true;  // what arrived while the last message box was open
  // The controls that shall be shown, in tab order: the sketch and the explanation, the options,
  // seven for the track and the initial speed, Label4, four for the run.
  std::string shown = "11000111111110000";

  int Any(int from, int to) { return std::uniform_int_distribution(from, to)(random); }

  std::string ShownNow() const {
    std::string now;
    for (const toolkit::Control* control : w.controls) now += control->Visible ? '1' : '0';
    return now;
  }

  // Clicks, which shows some controls and hides others.
  void Click(auto& clicked, const std::string& effect = "") {
    clicked.UserClick();
    for (std::size_t i = 0; i < effect.size(); ++i) {
      if (effect[i] != '=') shown[i] = effect[i];
    }
  }

  void RandomEvent() {
    const int event = Any(0, 39);
    if (event == 0) Click(w.XANAPISO, "=====111111110===");
    if (event == 1) Click(w.campyles, "==011============");
    if (event == 2) Click(w.Option1, "=====00000000====");
    if (event == 3) Click(w.Option2, "=====0000000=1111");
    if (event == 4) Click(w.Option3, "=====111111110000");
    if (event == 5) Click(w.DYNAMEISDIAFORES);
    if (event == 6) Click(w.GUESSFORCE);
    if (event == 7) Click(w.Command1);
    if (event == 8) Click(w.VIMA);
    if (event == 9) Click(w.STAMATHMA);
    if (event == 10) Click(w.KSEKINA);
    if (event == 11 && Any(0, 25) == 0) Click(w.TERMATISMOS);
    if (event >= 12 && event < 20) desktop.Tick();
    if (event >= 20 && event < 26) Scroll();
    if (event >= 26 && event < 34) Mouse();
    if (event >= 34) w.eikona.UserKey(static_cast<toolkit::Key>(Any(0, 8)), Shift());
  }

  int Shift() { return Any(0, 2) == 0 ? Any(0, 7) : 1; }

  void Scroll() {
    toolkit::ScrollBar* const bars[] = {&w.platosvalue, &w.syxnotikamp, &w.epitaxyno, &w.arxikives,
                                        &w.vimatimi};
    bars[Any(0, 4)]->UserScroll(Any(0, 9) == 0 ? Any(-40000, 40000) : Any(-40, 310));
  }

  double Coordinate() {
    const double odd[] = {HUGE_VAL, -HUGE_VAL, std::nan(""), 1e308, -1e308, 1e38, -1e12, 1e-320};
    return Any(0, 5) == 0 ? odd[Any(0, 7)] : Any(-10000, 50000) / 1000.0;
  }

  // Half of the places are on the track, so that they are accepted.
  void Mouse() {
    const double x = Coordinate(), onTrack = track::Height(window::TrackParameters(w), x);
    const double y = Any(0, 1) == 0 ? onTrack : Coordinate();
    Any(0, 1) == 0 ? Press(x, y, Shift(), 1 << Any(0, 2)) : Release(x, y, Shift(), 1 << Any(0, 2));
  }

  // A handler opens the message box, and three others wait; what arrives before it is answered must
  // wait for its end.
  void OpenMessage() {
    desktop.whileMessageIsOpen = [&] {
      const auto before = std::pair(ShownNow(), +w.module.StepCount);
      for (int i = 0; i < 3; ++i) RandomEvent();
      waited = before == std::pair(ShownNow(), +w.module.StepCount);
    };
    w.events.Deliver([&] { waited = false, track::CarlsonRF(-1.0, 1.0, 1.0); });
  }

  // Takes one step. Returns what does not hold after it, or an empty text.
  std::string Step() {
    Forget();
    const auto before = track::EllipticEvaluations();
    const unsigned handlers = Any(0, 500) == 0 ? 4 : 1;
    handlers > 1 ? OpenMessage() : RandomEvent();
    const window::Module1& m = w.module;
    const int n = m.StepCount;
    const auto& [place, velocity, tangential, centripetal] = m.previous;
    if (track::EllipticEvaluations() - before > handlers * kMostEvaluations) return "long work";
    if (Operations().size() > handlers * kMostOperations) return "too much drawn";
    if (!waited) return "no message box, or a handler ran inside another";
    if (w.DYNAMEISDIAFORES.Checked && w.GUESSFORCE.Checked) return "both flags checked";
    if (w.Option1.Value + w.Option2.Value + w.Option3.Value > 1) return "two options selected";
    if (!desktop.ended && ShownNow() != shown) return ShownNow() + " shown instead of " + shown;
    if (n < 0 || n > window::PathRecords::kLastStep) return "step counter";
    if (!Finite({m.ElapsedTime, m.ForceStartX, m.ForceStartY, m.VelocityX, m.VelocityY,
                 m.path.PathX[n], m.path.PathY[n], m.path.PathTime[n], m.path.PathDs[n], place.x,
                 place.y, velocity.x, velocity.y, centripetal.x, centripetal.y})) {
      return "a shared variable is no number";
    }
    for (const Operation& o : Operations()) {
      if (!Finite({o.from.x, o.from.y, o.to.x, o.to.y, o.radius})) return "drawn at no number";
      if (o.text.size() > 400) return "a text of " + std::to_string(o.text.size());
    }
    return "";
  }
};

}  // namespace

std::string RandomWalk(long long events, unsigned long seed) {
  std::mt19937_64 random(seed);
  std::optional<Walk> walk(std::in_place, random);
  for (long long event = 0; event < events; ++event) {
    if (walk->desktop.ended) walk.emplace(random);
    const std::string fault = walk->Step();
    if (fault.empty()) continue;
    return fault + " in event " + std::to_string(event) + " of seed " + std::to_string(seed);
  }
  return "";
}
