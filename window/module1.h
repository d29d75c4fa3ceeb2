#pragma once

#include <array>
#include <string>
#include <vector>

#include "sketch/trail.h"
#include "track/geometry.h"

namespace window {

// What a time-evolution run has left behind, entry n of each after step n. Entries above the step
// counter belong to an earlier run and are not drawn.
struct PathRecords {
  static constexpr int kLastStep = 12500;

  std::array<double, 13001> PathX{};
  std::array<double, 13001> PathY{};
  std::array<double, 13001> PathTime{};
  std::array<double, 12501> PathDs{};  // distance less the entry before: an alternating sum
};

// The labels at the marks of the current run, one for every `interval` steps; empty where none is
// printed. Every step prints them all again, so they are kept as texts.
struct MarkLabels {
  int interval = 0;
  std::vector<std::string> texts;
};

// Where the arrows of the last step stand, so that the next one can erase them.
struct Arrows {
  track::Vector place, velocity, tangential, centripetal;
};

// The variables that the window's handlers and procedures share.
struct Module1 {
  int StepCount = 0;         // steps of the current run
  double ElapsedTime = 0.0;  // simulated time of the current run

  bool PointOnTrack = false;  // the last picked point was a point of the track
  float ForceStartX = 0.0F;   // the last press in the guess mode, sketch units
  float ForceStartY = 0.0F;
  double VelocityX = 0.0;  // the body's velocity at the last accepted point; no picture needs it
  double VelocityY = 0.0;

  double PointerX = 6.0;    // where the keyboard points: the track's point over this abscissa
  bool PullsForce = false;  // the keyboard has pressed there and pulls a force

  PathRecords path;
  MarkLabels labels;
  sketch::Trail trail;  // the dots of the path
  Arrows previous;
};

}  // namespace window
