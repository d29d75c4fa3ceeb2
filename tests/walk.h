#pragma once

#include <string>

// Takes a random walk over the program's events and checks after every one of them what must always
// hold. Returns the first fault and where it happened, or an empty text.
//
// The walk keeps a small model of what each event shows and hides, written down independently of
// the handlers, and starts the program anew on another screen when it has been ended.
std::string RandomWalk(long long events, unsigned long seed);
