#pragma once

#include "toolkit/window.h"

namespace toolkit::web {

// The page as a desktop for one window. `seen` is what is to be seen of it, in its own pixels, each
// of which is `ratio` of the screen's wide.
Desktop& OpenPage(Size seen, double ratio);

}  // namespace toolkit::web
