#pragma once

#include <functional>
#include <memory>
#include <random>
#include <string>

#include "app/firststep.h"
#include "toolkit/headless/desktop.h"

// A random walk over the program's events, and what must hold after every one of them.
//
// The walk keeps a small model of what each event shows and hides, written down independently of
// the handlers, and starts the program anew on another screen when it has been ended.
class Walk {
 public:
  explicit Walk(unsigned long seed) : random_(seed) { Restart(); }
  ~Walk();
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  // Takes one step. Returns what does not hold after it, or an empty text.
  std::string Step();

 private:
  // Groups of controls that are shown and hidden together.
  struct Shown {
    bool parameters = true, initialSpeed = true, start = false, stepping = false, choice = false;
    bool operator==(const Shown&) const = default;
  };

  void Restart();
  void RandomEvent();
  void Choose(int menu);
  void Mouse();
  void OpenMessage();
  double Coordinate();
  int Any(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

  Shown ShownNow() const;
  std::string Fault(unsigned long long evaluations);
  std::string CanvasFault() const;

  std::mt19937_64 random_;
  std::unique_ptr<toolkit::headless::HeadlessDesktop> desktop_;
  std::unique_ptr<app::firststep> window_;
  Shown expected_;
  std::string last_;
};
