#include "sdk/skelderutil/filename.h"

#include <string>
#include <string_view>

namespace {

void Store(std::string_view part, CStr* destination) {
  if (destination != nullptr) *destination = std::string(part).c_str();
}

}  // namespace

void SplitFilename(const char* name, CStr* path, CStr* file, CStr* extension) {
  const std::string copy = name == nullptr ? "" : name;
  const std::string_view whole = copy;

  const std::size_t separator = whole.find_last_of("/\\");
  const bool has_path = separator != std::string_view::npos;
  const std::string_view last = has_path ? whole.substr(separator + 1) : whole;
  const std::size_t dot = last.rfind('.');
  const bool has_extension = dot != std::string_view::npos;

  Store(has_path ? whole.substr(0, separator) : std::string_view(), path);
  Store(last.substr(0, dot), file);
  Store(has_extension ? last.substr(dot) : std::string_view(), extension);
}
