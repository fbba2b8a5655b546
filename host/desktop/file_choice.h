#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/export.h"
#include "platform/file_dialog.h"

// What a user chooses in a file dialog, and what the dialog makes of it. The dialog allows what the
// system's own does: everything else throws a ScriptError, because a person could not get past it.

namespace host {

// What the user types or clicks. A relative path counts from the folder that the dialog shows.
struct FileChoice {
  std::vector<std::string> paths;  // none: the user cancels
  bool agrees_to_replace = false;  // when asked whether an existing file may be replaced
};

// Files of one folder, as a file dialog tells them; no names when the dialog was cancelled.
struct ChosenFiles {
  std::string folder;  // absolute; ends with a slash only when it is the root
  std::vector<std::string> names;

  // Writes them as platform::ChooseFiles does. Returns false when they do not fit.
  bool Write(char* buffer, std::size_t size, std::size_t& name_offset) const;
};

// What `dialog` answers when the user makes `choice`: paths absolute, the default extension
// appended where a name has none. Throws a ScriptError when it does not allow the choice.
SKELDER_API ChosenFiles ResolveChoice(const platform::FileDialog& dialog, const FileChoice& choice);

// Writes the folder that the user chose in the dialog `title`, as platform::ChooseFolder does.
// Returns false when it does not fit; throws a ScriptError when there is no such folder.
bool WriteFolder(const std::string& title, const std::string& folder, char* buffer,
                 std::size_t size);

}  // namespace host
