#include <cstdio>
#include <cstdlib>
#include <random>

#include "cases.h"
#include "harness.h"
#include "sketch/draw_vector.h"
#include "track/carlson.h"

namespace {

// A picture of the run at its end has 12,501 dots; the others have some hundred operations.
constexpr std::size_t kMostOperations = 15000;

// What of a state the user sees: the check marks, the selection and the controls that show.
State Seen(State state) {
  std::erase_if(state,
                [](const auto& property) { return property.first.find(' ') == std::string::npos; });
  return state;
}

struct Walk : Program {
  explicit Walk(std::mt19937_64& source)
      : Program(static_cast<int>(320 + source() % 7361), static_cast<int>(200 + source() % 4121)),
        random(source) {}

  std::mt19937_64& random;
  app::firststep& w = *window;
  State wanted = kCases.opening;
  bool waited = true;  // what arrived while the last message box was open

  int Any(int from, int to) { return std::uniform_int_distribution(from, to)(random); }

  void RandomEvent() {
    const int event = Any(0, 39);
    if (event < std::ssize(kCases.handlers)) {
      const Handler& handler = std::next(kCases.handlers.begin(), event)->second;
      const bool ends = handler.effect.contains("program");
      if (ends && Any(0, 25) > 0) return;
      handler.Run(w);
      wanted = handler.After(wanted);
    }
    if (event >= 18 && event < 23) desktop.Tick();
    if (event >= 23 && event < 26) {
      bars.at(Any(0, 4))->UserScroll(Any(0, 9) == 0 ? Any(-40000, 40000) : Any(-40, 310));
    }
    if (event >= 26 && event < 34) Mouse();
    if (event == 34) DrawAnything();
    if (event >= 35) w.eikona.UserKey(static_cast<toolkit::Key>(Any(0, 8)), Shift());
  }

  int Shift() { return Any(0, 2) == 0 ? Any(0, 7) : 1; }

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

  // What no handler asks for: nothing infinite may reach the canvas all the same.
  void DrawAnything() {
    sketch::Sketch& s = w.eikona;
    const double x = s.CurrentX = Coordinate(), y = s.CurrentY = Coordinate();
    sketch::DrawVector(x, y, Coordinate(), Coordinate(), s, 0, 0, 0);
    s.Circle(x, y, 0, Coordinate(), Coordinate(), toolkit::kWhite);
    s.PSet(x, y);
    s.Print("x");
  }

  // A handler opens a message box; what arrives before it is answered must wait for its end.
  void OpenMessage() {
    desktop.whileMessageIsOpen = [&] {
      const State before = StateOf(w);
      for (int i = 0; i < 3; ++i) RandomEvent();
      waited = StateOf(w) == before;
    };
    w.events.Deliver([&] {
      waited = false;
      track::CarlsonRF(-1, 1, 1);
    });
  }

  // Takes one step. Returns what does not hold after it, or an empty text.
  std::string Step() {
    Forget();
    const unsigned handlers = Any(0, 500) == 0 ? 4 : 1;
    handlers > 1 ? OpenMessage() : RandomEvent();
    const window::Module1& m = w.module;
    const int n = m.StepCount;
    const auto& [place, velocity, tangential, centripetal] = m.previous;
    if (Operations().size() > handlers * kMostOperations) return "too much drawn";
    if (!waited) return "no message box, or a handler ran inside another";
    std::string differences = Differences(StateOf(w), Seen(wanted));
    if (!desktop.ended && !differences.empty()) return differences;
    if (n < 0 || n > window::PathRecords::kLastStep) return "step counter";
    const double all = m.ElapsedTime + m.ForceStartX + m.ForceStartY + m.VelocityX + m.VelocityY +
                       m.path.PathX[n] + m.path.PathY[n] + m.path.PathTime[n] + m.path.PathDs[n] +
                       place.x + place.y + velocity.x + velocity.y + centripetal.x + centripetal.y;
    if (!std::isfinite(all)) return "a shared variable is no number";
    for (const auto& o : Operations()) {
      if (!std::isfinite(o.from.x + o.from.y + o.to.x + o.to.y + o.radius)) return "drawn nowhere";
    }
    return "";
  }
};

}  // namespace

// Takes a random walk over the program's events and checks after every one of them what must always
// hold: soak EVENTS [SEED]. A program that has been ended starts anew on another screen.
int main(int argc, char** argv) {
  const long long events = argc > 1 ? std::atoll(argv[1]) : 100000;
  const unsigned long seed = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : std::random_device{}();
  std::mt19937_64 random(seed);
  std::optional<Walk> walk(std::in_place, random);
  for (long long event = 0; event < events; ++event) {
    if (walk->desktop.ended) walk.emplace(random);
    const std::string fault = walk->Step();
    if (fault.empty()) continue;
    std::printf("%s in event %lld of seed %lu\n", fault.c_str(), event, seed);
    return 1;
  }
}
