#include "plugin/utilities/file_dialogs.h"

#include <string_view>

#include "plugin/resources/resource.h"

namespace orvane {
namespace {

// The longest path of any system fits.
constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

constexpr std::size_t kMostFiles = 1000;

// A copy, because the table holds one text at a time.
std::string TextOf(StringTable& strings, HINSTANCE module, unsigned id) {
  const char* const text = strings.GetString(module, id);
  return text == nullptr ? "" : text;
}

// Takes the text up to the next NUL, or the end, off `texts`.
std::string_view TakeText(std::string_view& texts) {
  const std::string_view text = texts.substr(0, texts.find('\0'));
  texts.remove_prefix(text.size() == texts.size() ? text.size() : text.size() + 1);
  return text;
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

std::optional<std::string> ChooseOutputFolder(HWND owner) {
  std::string buffer(kBufferSize, '\0');
  if (!platform::ChooseFolder(owner, "Choose BVK Files Destination Folder...", buffer.data(),
                              buffer.size())) {
    return std::nullopt;
  }
  return buffer.c_str();
}

// One file alone is given as its path; ended in front of its name, that reads like several.
FilesInFolder ReadChosenFiles(std::string& buffer, std::size_t name_offset, char separator) {
  const bool is_path =
      0 < name_offset && name_offset <= buffer.size() && buffer[name_offset - 1] == separator;
  if (is_path) buffer[name_offset - 1] = '\0';

  std::string_view texts = buffer;
  FilesInFolder files;
  files.folder = TakeText(texts);
  std::string_view name = TakeText(texts);
  while (!name.empty() && files.paths.size() < kMostFiles) {
    files.paths.push_back(files.folder + separator + std::string(name));
    name = TakeText(texts);
  }
  return files;
}

}  // namespace orvane
