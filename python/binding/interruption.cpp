#include "python/binding/interruption.h"

#include <nanobind/nanobind.h>

namespace nb = nanobind;

namespace binding {
namespace {

// Who looks more often waits longer for the lock of the interpreter, where other threads work.
constexpr std::size_t kBytesBetweenLooks = std::size_t{8} << 20U;

}  // namespace

void Interruption::Pass(std::size_t bytes) {
  unwatched_ += bytes;
  if (unwatched_ < kBytesBetweenLooks) return;
  unwatched_ = 0;
  const nb::gil_scoped_acquire locked;
  if (PyErr_CheckSignals() != 0) throw nb::python_error();
}

}  // namespace binding
