#include "window/format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace window {
namespace {

constexpr int kFaithfulDigits = 15;

// Adds one to the last digit of a decimal numeral.
void CountUp(std::string& digits) {
  const std::size_t grows = digits.find_last_not_of('9');
  if (grows == std::string::npos) {
    digits.assign(digits.size() + 1, '0');
    digits.front() = '1';
  } else {
    ++digits[grows];
    std::fill(digits.begin() + static_cast<std::ptrdiff_t>(grows) + 1, digits.end(), '0');
  }
}

}  // namespace

std::string Format(double value, int decimals) {
  if (!std::isfinite(value)) return {};
  std::array<char, 32> text{};
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), std::abs(value),
                                        std::chars_format::scientific, kFaithfulDigits - 1)
                              .ptr;
  // "d.dddde+xx": the digits, and how many of them stand before the point.
  std::string digits;
  const char* at = text.data();
  for (; at != end && *at != 'e'; ++at) {
    if (*at != '.') digits += *at;
  }
  const int before = std::atoi(at + 1) + 1;

  // All digits that are kept, as one whole number with `decimals` of them behind the point.
  const int kept = before + decimals;
  std::string whole;
  if (kept >= 0) {
    const auto length = static_cast<std::size_t>(kept);
    whole = digits.substr(0, length);
    whole.resize(length, '0');
    if (length < digits.size() && digits[length] >= '5') CountUp(whole);
  }
  const auto behind = static_cast<std::size_t>(decimals);
  if (whole.size() <= behind) whole.insert(0, behind + 1 - whole.size(), '0');
  const bool zero = whole.find_first_not_of('0') == std::string::npos;
  if (behind > 0) whole.insert(whole.size() - behind, 1, '.');
  return value < 0.0 && !zero ? "-" + whole : whole;
}

}  // namespace window
