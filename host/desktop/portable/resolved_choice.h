#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/desktop/file_choice.h"
#include "platform/export.h"
#include "platform/file_dialog.h"

// What a file dialog makes of its user's choice. It allows what the system's own does: everything
// else throws a ScriptError.

namespace host {

// Files of one folder, as a file dialog tells them; no names when the dialog was cancelled.
struct ResolvedChoice {
  std::string folder;  // absolute; ends with a slash only when it is the root
  std::vector<std::string> names;

  // Writes them as platform::ChooseFiles does. Returns false when they do not fit.
  [[nodiscard]] bool Write(char* buffer, std::size_t size, std::size_t& name_offset) const;
};

// What `dialog` answers when the user makes `choice`: paths absolute, the default extension
// appended where a name has none. Throws a ScriptError when it does not allow the choice.
[[nodiscard]] SKELDER_API ResolvedChoice ResolveChoice(const platform::FileDialog& dialog,
                                                       const FileChoice& choice);

// Writes the folder that the user chose in the dialog `title`, as platform::ChooseFolder does.
// Returns false when it does not fit; throws a ScriptError when there is no such folder.
[[nodiscard]] bool WriteFolder(const std::string& title, const std::string& folder, char* buffer,
                               std::size_t size);

}  // namespace host
