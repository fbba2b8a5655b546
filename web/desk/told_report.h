#pragma once

#include <string_view>

#include "inspect/report/report.h"

namespace web {

// Tells the page `what`, with the findings of `report`, each as a sentence or two.
void TellReport(std::string_view what, const orvane::FileReport& report);

}  // namespace web
