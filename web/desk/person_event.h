#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/registry.h"

// One thing that the person has done, out of the words of web/worker/desk_protocol.ts.

namespace web {

// A value of the plug-in's settings.
struct StoredValue {
  std::string key;
  std::string name;
  platform::RegistryType type = platform::RegistryType::kBinary;
  std::string bytes;
};

// What is not told of a deed is as below.
struct PersonEvent {
  std::string did;
  int number = 0;  // of the dialog, the box or the choice; or its own
  int control = 0;
  std::string text;        // that was typed; or the button of the answer
  std::uint32_t node = 0;  // 0: none
  std::string standard;    // the standard marker that the node was picked for
  int frame = 0;
  std::string path;
  std::vector<std::string> paths;
  std::vector<std::uint32_t> nodes;
  std::optional<std::pair<int, int>> range;
  std::vector<StoredValue> values;
};

// Nothing comes of what is no object of such words.
[[nodiscard]] std::optional<PersonEvent> ParseEvent(std::string_view json);

// Kinds of values as the page calls them.
[[nodiscard]] const char* NameOf(platform::RegistryType type);

}  // namespace web
