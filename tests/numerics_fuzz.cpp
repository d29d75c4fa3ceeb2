#include <cstring>
#include <stdexcept>

#include "any_double.h"

// Coverage-guided fuzzing of the numerics: any 24 bytes are three doubles. Built with
// -DFIRSTSTEP_FUZZ=ON by clang; run as numerics_fuzz -max_total_time=600.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  double v[3] = {0, 0, 0};
  std::memcpy(v, data, size < sizeof v ? size : sizeof v);
  const std::string fault = FaultOfNumerics(v[0], v[1], v[2]);
  if (!fault.empty()) throw std::logic_error(fault);
  return 0;
}
