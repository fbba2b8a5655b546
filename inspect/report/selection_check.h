#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "inspect/check/checked_file.h"
#include "inspect/report/action.h"

// What is to be said of the names by which nodes of a scene are selected, before anything is done
// with them. The findings have no place in a file. Nothing fails but for want of memory.

namespace orvane {

// A name that no node of the scene has.
struct UnknownName {
  std::string name;
  std::string similar;  // that of a node, of which it may be misspelt; empty for none
};

// The findings of the codes "...-select-...", of the file or the scene known as `name` of that
// `kind`. `is_any_selected`: other names are in the scene.
[[nodiscard]] CheckedFile CheckSelection(const std::string& name, std::string_view kind,
                                         Action action, const std::vector<UnknownName>& unknown,
                                         bool is_any_selected);

}  // namespace orvane
