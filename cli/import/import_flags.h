#pragma once

#include <vector>

#include "cli/common/dialog_user.h"

// The flags of `orvane import` that are controls of the options dialogs "ImportHTR" and
// "ImportTRC". What does the same in both has the same id, and the same flag.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the flags to `verb`. Parsing the arguments adds a wish for each that is given to `wishes`,
// which must outlive the parsing.
void AddImportFlags(CLI::App& verb, std::vector<ControlWish>& wishes);

// The wish of "--frame-rate file".
ControlWish FrameRateFromFile();

// Whether `wishes` say anything of the scene's frame rate.
bool MentionFrameRate(const std::vector<ControlWish>& wishes);

}  // namespace cli
