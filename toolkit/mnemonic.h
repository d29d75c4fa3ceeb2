#pragma once

#include <optional>
#include <vector>

#include "toolkit/menu.h"

namespace toolkit {

// For each of the items of one bar or drop-down the place of its mnemonic in its caption, counted
// in bytes: the first letter (of the Latin alphabet) that no item before it has taken. Nothing for
// a caption all of whose letters are taken.
std::vector<std::optional<std::size_t>> Mnemonics(const std::vector<MenuItem*>& items);

}  // namespace toolkit
