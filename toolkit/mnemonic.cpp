#include "toolkit/mnemonic.h"

#include <string>

namespace toolkit {
namespace {

// The letter in lower case, or 0 where the character is none. Not the C library's: that one asks
// the locale.
char Letter(char c) {
  if (c >= 'A' && c <= 'Z') return static_cast<char>(c - 'A' + 'a');
  return c >= 'a' && c <= 'z' ? c : '\0';
}

}  // namespace

std::vector<std::optional<std::size_t>> Mnemonics(const std::vector<MenuItem*>& items) {
  std::vector<std::optional<std::size_t>> places;
  std::string taken;
  for (const MenuItem* item : items) {
    std::optional<std::size_t> place;
    for (std::size_t i = 0; i < item->Caption.size() && !place; ++i) {
      const char letter = Letter(item->Caption[i]);
      if (letter == '\0' || taken.find(letter) != std::string::npos) continue;
      taken += letter;
      place = i;
    }
    places.push_back(place);
  }
  return places;
}

}  // namespace toolkit
