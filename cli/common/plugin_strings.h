#pragma once

#include <algorithm>
#include <cassert>
#include <iterator>
#include <string_view>

#include "plugin/resources/resource.h"

// Texts of the module's string table by their numbers (IDS_...): what its classes and file dialogs
// are known by.

namespace cli {

struct PluginString {
  unsigned int id = 0;
  std::string_view text;
};

inline constexpr PluginString kPluginStrings[] = {
    {IDS_IMPORT_HTR, "ImportHTR"},
    {IDS_EXPORT_HTR, "ExportHTR"},
    {IDS_IMPORT_TRC, "ImportTRC"},
    {IDS_UTILITIES, "OrvaneUtilities"},
    {IDS_MNM_FILES, "Marker Name Mapping Files (*.MNM)"},
    {IDS_BVK_FILES, "Kinarch Marker Files (*.BVK)"},
};

// REQUIRES: `id` is one of these.
[[nodiscard]] constexpr std::string_view PluginText(unsigned int id) {
  const auto known = std::find_if(std::begin(kPluginStrings), std::end(kPluginStrings),
                                  [id](const PluginString& each) { return each.id == id; });
  assert(known != std::end(kPluginStrings));
  return known->text;
}

}  // namespace cli
