#pragma once

#include <string_view>

#include "cli/common/json_writer.h"
#include "inspect/report/report.h"

namespace web {

// Writes the member `findings` with those of `report`, each as a sentence or two.
void WriteToldFindings(cli::JsonWriter& json, const orvane::FileReport& report);

// Tells the page `what`, with the findings of `report`.
void TellReport(std::string_view what, const orvane::FileReport& report);

}  // namespace web
