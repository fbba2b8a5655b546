#include <nanobind/nanobind.h>

#include "python/binding/bindings.h"
#include "python/binding/file_error.h"

// The module orvane._orvane: what the package orvane, which is written in Python, is made of. Its
// functions take and return plain values; what they mean stands in the package.

NB_MODULE(_orvane, module) {
  module.doc() = "What the package orvane is made of; use that.";
  module.attr("version") = ORVANE_VERSION;
  binding::RegisterFileError();
  binding::BindMarkers(module);
  binding::BindMotion(module);
  binding::BindMadeMotion(module);
  binding::BindEdits(module);
  binding::BindWriting(module);
  binding::BindPoses(module);
  binding::BindChecks(module);
  binding::BindComparisons(module);
  binding::BindProgram(module);
}
