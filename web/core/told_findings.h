#pragma once

#include "inspect/report/action.h"
#include "web/core/answer.h"
#include "web/core/take.h"

namespace web {

// What the findings of the take mean to the action, as JSON: each code with its first places, and
// in "json" the report as the program writes it. Throws a Refusal when the file is not taken by
// such an action, or cannot be read.
[[nodiscard]] Answer TellFindings(const Take& take, orvane::Action action);

}  // namespace web
