#pragma once

#include <string>

#include "formats/text/files.h"
#include "inspect/check/checked_file.h"
#include "inspect/report/report.h"
#include "web/core/take.h"

// What the reading of motion and of marker files has in common.

namespace web {

// Opens the file. Throws a Refusal when it cannot be read.
[[nodiscard]] orvane::FileSource OpenFile(const std::string& path);

// What is told when the file is refused with `why`: the error that was found in it tells more.
[[nodiscard]] Refusal RefusalOf(const orvane::CheckedFile& checked, const std::string& why);

// Checks the file by `check`, which reads a source. `why_empty` tells, once that is read, that it
// holds nothing, or is empty. Throws a Refusal.
template <typename Check, typename WhyEmpty>
orvane::CheckedFile ReadChecked(const std::string& path, const Check& check,
                                const WhyEmpty& why_empty) {
  orvane::FileSource source = OpenFile(path);
  try {
    orvane::CheckedFile checked = check(path, source);
    if (source.HasFailed()) throw Refusal{"The file could not be read to its end"};
    const std::string why = checked.refusal.empty() ? why_empty() : checked.refusal;
    if (!why.empty()) throw RefusalOf(checked, why);
    return checked;
  } catch (const orvane::CheckFailure& failure) {
    throw Refusal{std::string(failure.what()) + ". " + failure.Advice(), "file-misread"};
  }
}

}  // namespace web
