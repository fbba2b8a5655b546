#pragma once

#include <string>
#include <vector>

// A dialog for files as its user sees it, and what he chooses there. A choice that the dialog does
// not allow is a ScriptError, because a person could not get past it.

namespace host {

// What tells one such dialog from another. Everything else about it (the default extension, what it
// insists on) shows only when something is chosen.
struct ShownFileDialog {
  std::string title;
  std::string filter;  // the name of the one filter: "Orvane TRC Files (*.TRC)"
};

// What the user types or clicks. A relative path counts from the folder that the dialog shows.
struct FileChoice {
  std::vector<std::string> paths;  // none: the user cancels
  bool agrees_to_replace = false;  // when asked whether an existing file may be replaced
};

}  // namespace host
