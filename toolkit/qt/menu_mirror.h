#pragma once

#include <memory>
#include <vector>

#include "toolkit/menu.h"

class QMenuBar;

namespace toolkit::qt {

// Fills the menu bar with the items and their drop-downs; a mirror for each of them.
std::vector<std::unique_ptr<Mirror>> MirrorMenus(const std::vector<MenuItem*>& items,
                                                 QMenuBar& bar);

}  // namespace toolkit::qt
