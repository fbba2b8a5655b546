#pragma once

#include <cstddef>

#include "platform/handles.h"

// The system's dialogs for choosing files and folders. Texts and paths are UTF-8 off Windows and in
// the system's narrow encoding on it.

namespace platform {

// What a file dialog shows and accepts. It has one filter; names that do not match it may be typed.
struct FileDialog {
  enum class Kind { kOpen, kSave };

  Kind kind = Kind::kOpen;
  HWND owner = nullptr;
  const char* title = "";
  const char* filter_name = "";        // as the user reads it
  const char* filter_pattern = "";     // "*.trc"
  const char* default_extension = "";  // without a dot; appended to a name that has none
  const char* initial_folder = "";     // one that does not exist leaves the choice to the system
  bool several = false;                // kOpen: several files of one folder may be chosen
  bool file_must_exist = false;
  bool folder_must_exist = false;
  bool ask_before_replacing = false;  // kSave: choosing a file that exists needs the user's consent
  bool hide_read_only_box = false;
};

// Shows `dialog` and waits until the user has chosen. Returns false, and leaves `buffer` and
// `name_offset` undefined, when he cancels, when the dialog cannot be shown, and when the choice
// does not fit into `buffer`.
//
// Otherwise one chosen file stands in `buffer` as its path, ended by two NULs (one, when there is
// no room for the second); several, which `dialog` has to allow, as their folder and then each name
// of a file in it, every one ended by a NUL and the last one by two. A folder ends with a separator
// only when it is the root of a file system. `name_offset` is the place of the (first) file name
// in `buffer`. The process's current folder stays what it is.
// REQUIRES: `buffer` holds `size` bytes, 1 or more.
[[nodiscard]] bool ChooseFiles(const FileDialog& dialog, char* buffer, std::size_t size,
                               std::size_t& name_offset);

// Shows a dialog titled `title` over `owner` in which the user chooses a folder, and waits. Returns
// false when he cancels, when the dialog cannot be shown, and when the path does not fit into
// `buffer`; otherwise the path of the folder stands there, ended by a NUL.
// REQUIRES: `buffer` holds `size` bytes, 1 or more.
[[nodiscard]] bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size);

// What stands between a folder and a file name in a path.
[[nodiscard]] char PathSeparator();

}  // namespace platform
