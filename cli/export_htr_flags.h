#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "cli/dialog_user.h"

// The flags of `orvane export` that are controls of the options dialog "ExportHTR".

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the flags to `verb`. Parsing the arguments adds a wish for each that is given to `wishes`,
// which must outlive the parsing.
void AddExportHtrFlags(CLI::App& verb, std::vector<ControlWish>& wishes);

// Whether `wishes` leave frames out altogether.
bool LeaveAnimationOut(const std::vector<ControlWish>& wishes);

// How many frames "--range" takes, as the dialog will read its numbers; nothing without it.
std::optional<std::int64_t> FramesToExport(const std::vector<ControlWish>& wishes);

}  // namespace cli
