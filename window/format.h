#pragma once

#include <string>

namespace window {

// A number as people write it: at least one digit before the point, exactly `decimals` after it,
// rounded half away from zero as the number reads in its 15 faithful decimal digits (0.0625 to
// three places is 0.063, and so is a 0.0625 that arithmetic left a last bit too small). Zero has no
// sign. The point is a point in every locale. Empty for infinities and NaN; 0 <= decimals <= 15.
std::string Format(double value, int decimals);

}  // namespace window
