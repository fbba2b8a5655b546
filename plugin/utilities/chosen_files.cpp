#include "plugin/utilities/chosen_files.h"

#include <string_view>

namespace orvane {
namespace {

// Takes the text up to the next NUL, or the end, off `texts`.
std::string_view TakeText(std::string_view& texts) {
  const std::string_view text = texts.substr(0, texts.find('\0'));
  texts.remove_prefix(text.size() == texts.size() ? text.size() : text.size() + 1);
  return text;
}

}  // namespace

// One file alone is given as its path; ended in front of its name, that reads like several.
ChosenFiles ReadChosenFiles(std::string& buffer, std::size_t name_offset, char separator) {
  const bool is_path =
      0 < name_offset && name_offset <= buffer.size() && buffer[name_offset - 1] == separator;
  if (is_path) buffer[name_offset - 1] = '\0';

  std::string_view texts = buffer;
  ChosenFiles chosen;
  chosen.folder = TakeText(texts);
  std::string_view name = TakeText(texts);
  while (!name.empty() && chosen.paths.size() < kMostFiles) {
    chosen.paths.push_back(chosen.folder + separator + std::string(name));
    name = TakeText(texts);
  }
  return chosen;
}

}  // namespace orvane
