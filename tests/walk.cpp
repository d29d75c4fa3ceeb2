#include "walk.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "track/arc_length.h"
#include "track/carlson.h"

namespace {

// A picture of the run at its end has 12,501 dots; the others have some hundred operations.
constexpr std::size_t kMostOperations = 15000;
// 401 samples with two integrals each are the most that a handler has to do.
constexpr unsigned long long kMostEvaluations = 1200;

bool Finite(std::initializer_list<double> values) {
  return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

}  // namespace

Walk::~Walk() {
  window_.reset();
}

void Walk::Restart() {
  window_.reset();
  desktop_ = std::make_unique<toolkit::headless::HeadlessDesktop>(Any(320, 7680), Any(200, 4320));
  window_ = app::Main(*desktop_);
  desktop_->Picture().operations.clear();
  expected_ = {};
  last_ = "start";
}

std::string Walk::Step() {
  if (desktop_->ended) Restart();
  const auto before = track::EllipticEvaluations();
  desktop_->Picture().operations.clear();
  if (Any(0, 500) == 0) {
    OpenMessage();
  } else {
    RandomEvent();
  }
  const std::string fault = Fault(track::EllipticEvaluations() - before);
  return fault.empty() ? fault : fault + " after " + last_;
}

void Walk::RandomEvent() {
  app::firststep& w = *window_;
  switch (Any(0, 13)) {
    case 0:
    case 1:
      return Choose(Any(0, 150) == 0 ? 7 : Any(0, 6));
    case 2: {
      const auto option = static_cast<std::size_t>(Any(0, 2));
      last_ = "option " + std::to_string(option + 1);
      w.options.members[option]->UserClick();
      if (option == 0) expected_.parameters = expected_.initialSpeed = false;
      if (option == 1) expected_.parameters = false;
      if (option == 2) expected_.parameters = expected_.initialSpeed = true;
      if (option > 0) expected_.start = expected_.stepping = option == 1;
      return;
    }
    case 3:
      last_ = "button";
      return Any(0, 1) == 0 ? w.Command1.UserClick() : w.VIMA.UserClick();
    case 4:
    case 5: {
      const std::array<toolkit::ScrollBar*, 5> bars{&w.platosvalue, &w.syxnotikamp, &w.epitaxyno,
                                                    &w.arxikives, &w.vimatimi};
      last_ = "scroll";
      return bars[static_cast<std::size_t>(Any(0, 4))]->UserScroll(
          Any(0, 9) == 0 ? Any(-40000, 40000) : Any(-40, 310));
    }
    case 6:
    case 7:
    case 8:
      return Mouse();
    case 9:
    case 10:
      last_ = "key";
      return w.eikona.UserKey(static_cast<toolkit::Key>(Any(0, 8)), Any(0, 2) == 0 ? Any(0, 7) : 1);
    default:
      last_ = "tick";
      return desktop_->Tick();
  }
}

void Walk::Choose(int menu) {
  app::firststep& w = *window_;
  const std::array<toolkit::MenuItem*, 8> items{&w.XANAPISO, &w.DYNAMEISDIAFORES, &w.GUESSFORCE,
                                                &w.campyles, &w.STAMATHMA,        &w.KSEKINA,
                                                &w.KSEKINA,  &w.TERMATISMOS};
  toolkit::MenuItem& item = *items[static_cast<std::size_t>(menu)];
  last_ = item.Name;
  item.UserClick();
  if (menu == 0) expected_.parameters = expected_.initialSpeed = true;
  if (menu == 0) expected_.start = false;
  if (menu == 3) expected_.choice = true;
}

double Walk::Coordinate() {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr std::array<double, 9> kSpecial{kInfinity, -kInfinity, std::nan(""), 1e308, -1e308,
                                           1e38,      -1e12,      1e-320,       -0.0};
  if (Any(0, 5) == 0) return kSpecial[static_cast<std::size_t>(Any(0, 8))];
  return std::uniform_real_distribution<double>(-300.0, 1500.0)(random_);
}

void Walk::Mouse() {
  app::firststep& w = *window_;
  last_ = "mouse";
  toolkit::Point place{Coordinate(), Coordinate()};
  if (Any(0, 1) == 0 && std::isfinite(place.x)) {
    // On the track, so that the point is accepted.
    const double unit = (desktop_->Picture().Size().width - 1) / 20.0;
    const double y = track::Height(window::TrackParameters(w), place.x / unit);
    place.y = (10.0 - y) * unit;
  }
  const toolkit::MouseEvent event{1 << Any(0, 2), Any(0, 2) == 0 ? Any(0, 7) : 1, place};
  return Any(0, 1) == 0 ? w.eikona.UserMouseDown(event) : w.eikona.UserMouseUp(event);
}

// A handler opens the message box; what arrives before it is answered must wait for its end.
void Walk::OpenMessage() {
  bool open = false;
  bool early = false;
  window_->events.Deliver([&] {
    desktop_->whileMessageIsOpen = [&] {
      open = true;
      const auto steps = window_->module.StepCount;
      const Shown shown = ShownNow();
      for (int i = 0; i < 3; ++i) RandomEvent();
      early = steps != window_->module.StepCount || !(shown == ShownNow());
      open = false;
    };
    track::CarlsonRF(-1.0, 1.0, 1.0);
    desktop_->whileMessageIsOpen = nullptr;
  });
  last_ = early || open ? "a handler ran inside another" : "message box";
}

Walk::Shown Walk::ShownNow() const {
  const app::firststep& w = *window_;
  return {w.platosvalue.Visible, w.Label4.Visible, w.Command1.Visible, w.VIMA.Visible,
          w.Option2.Visible};
}

std::string Walk::Fault(unsigned long long evaluations) {
  const app::firststep& w = *window_;
  const window::Module1& m = w.module;
  if (last_.starts_with("a handler")) return last_;
  if (evaluations > 4 * kMostEvaluations ||
      (last_ != "message box" && evaluations > kMostEvaluations)) {
    return std::to_string(evaluations) + " integrals";
  }
  if (w.DYNAMEISDIAFORES.Checked && w.GUESSFORCE.Checked) return "both flags checked";
  if (w.Option1.Value + w.Option2.Value + w.Option3.Value > 1) return "two options selected";
  if (!desktop_->ended && !(ShownNow() == expected_)) return "wrong controls shown";
  for (const toolkit::Control* c : std::initializer_list<const toolkit::Control*>{
           &w.syxnotikamp, &w.epitaxyno, &w.arxikives, &w.Label1, &w.Label2, &w.Label3}) {
    if (c->Visible != w.platosvalue.Visible) return c->Name + " shown otherwise than its group";
  }
  if (w.vimatimi.Visible != w.VIMA.Visible || w.Label5.Visible != w.VIMA.Visible ||
      w.Option3.Visible != w.Option2.Visible || !w.eikona.Visible || !w.Text1.Visible) {
    return "a control shown otherwise than its group";
  }
  if (m.StepCount < 0 || m.StepCount > window::PathRecords::kLastStep) return "step counter";
  const auto n = static_cast<std::size_t>(m.StepCount);
  if (!Finite({m.ElapsedTime, m.ForceStartX, m.ForceStartY, m.VelocityX, m.VelocityY,
               m.path.PathX[n], m.path.PathY[n], m.path.PathTime[n], m.path.PathDs[n],
               m.previous.place.x, m.previous.place.y, m.previous.velocity.x, m.previous.velocity.y,
               m.previous.centripetal.x, m.previous.centripetal.y})) {
    return "a shared variable is no number";
  }
  return CanvasFault();
}

std::string Walk::CanvasFault() const {
  const auto& operations = desktop_->Picture().operations;
  if (operations.size() > kMostOperations * (last_ == "message box" ? 4 : 1))
    return "too much drawn";
  for (const auto& o : operations) {
    if (!Finite({o.from.x, o.from.y, o.to.x, o.to.y, o.radius})) return "drawn at no number";
    if (o.text.size() > 400) return "a text of " + std::to_string(o.text.size());
  }
  return {};
}
