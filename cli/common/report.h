#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/json_writer.h"
#include "inspect/report/report.h"

// What is told of a file before something is done with it: as lines for a person, and as JSON for a
// program. docs/command-line.md documents both.

namespace cli {

// "12 values are not numbers: "1,5", "2,5". What ..."
[[nodiscard]] std::string TextOf(const orvane::ReportedFinding& finding);

// "12 values are not numbers: "1,5", "2,5" (line 7, column 3). What ... [trc-number-unreadable]"
[[nodiscard]] std::string LineOf(const orvane::ReportedFinding& finding);

// `refusal`, and behind its text the code of the finding of `report` that it stands for: the first
// that has one of `codes`, if any.
[[nodiscard]] Complaint WithCode(Complaint refusal, const orvane::FileReport& report,
                                 const std::vector<std::string_view>& codes);

// A line for each finding, and a last one that counts them; one line where there is none.
void PrintReport(const orvane::FileReport& report, std::ostream& out);

// "1e 2w 40n": how many errors, warnings and notes; "-" where there are none.
[[nodiscard]] std::string BriefCounts(const orvane::FileReport& report);

// What was found, as an array.
void WriteFindings(JsonWriter& json, const orvane::FileReport& report);

// The report as an object; null when there is none.
void WriteReport(JsonWriter& json, const std::optional<orvane::FileReport>& report);

// A whole document of reports.
void PrintReportsJson(const std::vector<orvane::FileReport>& reports, std::ostream& out);

}  // namespace cli
