#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_dialog.h"
#include "plugin/services/string_table.h"

// The dialogs in which the user chooses files and folders, and what they leave behind.
namespace orvane {

// Shows `dialog`, to which what both dialogs for mapping files have in common is added, with texts
// of `module` from `strings`. Returns the path chosen; nothing when the user cancels.
[[nodiscard]] std::optional<std::string> ChooseMappingFile(platform::FileDialog dialog,
                                                           StringTable& strings, HINSTANCE module);

// Lets the user choose the folder for marker files, over `owner`. Returns its path; nothing when he
// cancels.
[[nodiscard]] std::optional<std::string> ChooseOutputFolder(HWND owner);

// What a file dialog that allows several files leaves in its buffer.
struct FilesInFolder {
  std::string folder;
  std::vector<std::string> paths;  // of the files, all in that folder
};

// Reads `buffer` as platform::ChooseFiles fills it, and changes it. Names are put behind the folder
// with `separator` between. Of more than a thousand files the first thousand are taken.
[[nodiscard]] FilesInFolder ReadChosenFiles(std::string& buffer, std::size_t name_offset,
                                            char separator);

}  // namespace orvane
