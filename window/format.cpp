#include "window/format.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace window {
namespace {

constexpr std::size_t kFaithfulDigits = 15;

// A whole number of any size, in groups of nine decimal digits, the lowest first.
class Whole {
 public:
  explicit Whole(std::uint64_t value) {
    for (; value > 0; value /= kGroup) groups_.push_back(value % kGroup);
  }
  void Multiply(std::uint64_t factor) {
    std::uint64_t carry = 0;
    for (std::uint64_t& group : groups_) {
      carry += group * factor;
      group = carry % kGroup;
      carry /= kGroup;
    }
    if (carry > 0) groups_.push_back(carry);
  }
  std::string Digits() const {
    std::string digits;
    for (std::size_t i = groups_.size(); i-- > 0;) {
      const std::string nine = std::to_string(groups_[i]);
      if (!digits.empty()) digits.append(9 - nine.size(), '0');
      digits += nine;
    }
    return digits;
  }

 private:
  static constexpr std::uint64_t kGroup = 1'000'000'000;
  std::vector<std::uint64_t> groups_;
};

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

// The value as 0.ddd... * 10^exponent, rounded to the faithful digits as they are nearest, an even
// last digit in the middle; 0 as 0.000 * 10^1. The value is finite and has no sign.
struct Decimal {
  explicit Decimal(double value) {
    if (value == 0.0) return;
    int power = 0;
    const double fraction = std::frexp(value, &power);  // value = fraction * 2^power
    Whole whole(static_cast<std::uint64_t>(std::ldexp(fraction, 53)));
    power -= 53;
    // A half is 5/10: the exact digits, with the point so many places to the left.
    for (int i = 0; i < std::abs(power); ++i) whole.Multiply(power < 0 ? 5 : 2);
    digits = whole.Digits();
    exponent = static_cast<int>(digits.size()) + std::min(power, 0);
    Round();
  }

  std::string digits = std::string(kFaithfulDigits, '0');
  int exponent = 1;

 private:
  void Round() {
    if (digits.size() > kFaithfulDigits) {
      const std::string rest = digits.substr(kFaithfulDigits);
      const std::string half = '5' + std::string(rest.size() - 1, '0');
      digits.resize(kFaithfulDigits);
      const bool odd = (digits.back() - '0') % 2 == 1;
      if (rest > half || (rest == half && odd)) CountUp(digits);
      if (digits.size() > kFaithfulDigits) ++exponent;
    }
    digits.resize(kFaithfulDigits, '0');
  }
};

}  // namespace

std::string Format(double value, int decimals) {
  if (!std::isfinite(value)) return {};
  const Decimal number(std::abs(value));

  // All digits that are kept, as one whole number with `decimals` of them behind the point.
  const int kept = number.exponent + decimals;
  std::string whole;
  if (kept >= 0) {
    const auto length = static_cast<std::size_t>(kept);
    whole = number.digits.substr(0, length);
    whole.resize(length, '0');
    if (length < number.digits.size() && number.digits[length] >= '5') CountUp(whole);
  }
  const auto behind = static_cast<std::size_t>(decimals);
  if (whole.size() <= behind) whole.insert(0, behind + 1 - whole.size(), '0');
  const bool zero = whole.find_first_not_of('0') == std::string::npos;
  if (behind > 0) whole.insert(whole.size() - behind, 1, '.');
  return value < 0.0 && !zero ? "-" + whole : whole;
}

}  // namespace window
