#include "plugin/utilities/mapping_file_dialog.h"

#include <cstddef>

#include "plugin/resources/resource.h"

namespace orvane {
namespace {

// The longest path of any system fits.
constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

// A copy, because the table holds one text at a time.
std::string TextOf(StringTable& strings, HINSTANCE module, unsigned id) {
  const char* const text = strings.GetString(module, id);
  return text == nullptr ? "" : text;
}

}  // namespace

std::optional<std::string> ChooseMappingFile(platform::FileDialog dialog, StringTable& strings,
                                             HINSTANCE module) {
  const std::string title = TextOf(strings, module, IDS_SELECT_MAPPING_FILE);
  const std::string filter = TextOf(strings, module, IDS_MNM_FILES);
  dialog.title = title.c_str();
  dialog.filter_name = filter.c_str();
  dialog.filter_pattern = "*.mnm";
  dialog.default_extension = "mnm";
  dialog.folder_must_exist = true;
  dialog.hide_read_only_box = true;
  std::string buffer(kBufferSize, '\0');
  std::size_t name_offset = 0;
  if (!platform::ChooseFiles(dialog, buffer.data(), buffer.size(), name_offset)) return {};
  return buffer.c_str();
}

}  // namespace orvane
