#pragma once

#include <string>
#include <string_view>

namespace window {

// What a control or menu command is for, in one line of plain English, by its name: most captions
// are Greek or short. Empty for what needs no words.
std::string HintOf(std::string_view name);

}  // namespace window
