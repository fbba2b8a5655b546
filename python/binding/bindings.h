#pragma once

#include <nanobind/nanobind.h>

// The parts of the module, each in a file of its own.

namespace binding {

void BindMarkers(nanobind::module_& module);
void BindMotion(nanobind::module_& module);
void BindMadeMotion(nanobind::module_& module);
void BindEdits(nanobind::module_& module);
void BindWriting(nanobind::module_& module);
void BindPoses(nanobind::module_& module);
void BindChecks(nanobind::module_& module);
void BindComparisons(nanobind::module_& module);
void BindProgram(nanobind::module_& module);

}  // namespace binding
