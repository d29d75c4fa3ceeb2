#include <cstddef>
#include <memory>

#include "app/firststep.h"
#include "toolkit/web/desktop.h"

// The page looks at the memory anew with each use.
extern "C" void emscripten_notify_memory_growth(std::size_t) {
}

[[clang::export_name("Start")]] void Start(double width, double height, double ratio) {
  static std::unique_ptr<app::firststep> program;
  program = app::Main(toolkit::web::OpenPage({width, height}, ratio));
}
