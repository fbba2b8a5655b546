#pragma once

#include <string>
#include <string_view>

#include "cli/common/failure.h"
#include "cli/common/json_writer.h"
#include "inspect/report/report.h"

namespace web {

// Writes the member `findings` with those of `report`, each as a sentence or two.
void WriteToldFindings(cli::JsonWriter& json, const orvane::FileReport& report);

// Tells the page `what`, with the findings of `report`.
void TellReport(std::string_view what, const orvane::FileReport& report);

// What the program would not do, and what helps.
[[nodiscard]] std::string RefusalOf(const cli::Failure& failure);

// Tells the page what would be lost by the choices that a dialog shows; `refusal` is why nothing
// would be done, or empty.
void TellLosses(const orvane::FileReport& report, const std::string& refusal);

}  // namespace web
