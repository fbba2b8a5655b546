#pragma once

#include <optional>
#include <string>

#include "platform/file_dialog.h"
#include "plugin/services/string_table.h"

// The dialogs in which the user chooses a mapping file.
namespace orvane {

// Shows `dialog`, to which what both dialogs for mapping files have in common is added, with texts
// of `module` from `strings`. Returns the path chosen; nothing when the user cancels.
std::optional<std::string> ChooseMappingFile(platform::FileDialog dialog, StringTable& strings,
                                             HINSTANCE module);

}  // namespace orvane
