#pragma once

#include <nanobind/nanobind.h>

#include "inspect/report/report.h"
#include "python/binding/typed.h"

// Reports on files in Python: orvane/findings.py makes objects of these.

namespace binding {

// Those of `report`, in its order.
[[nodiscard]] FindingList FindingsOf(const orvane::FileReport& report);

}  // namespace binding
