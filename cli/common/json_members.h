#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/common/json_writer.h"

// Members of an object that `json` has open, each its key and its value.

namespace cli {

void WriteText(JsonWriter& json, std::string_view key, std::string_view text);
// Null when the text is empty.
void WriteTextOrNull(JsonWriter& json, std::string_view key, std::string_view text);
// On one line.
void WriteTexts(JsonWriter& json, std::string_view key, const std::vector<std::string>& texts);

void WriteNumber(JsonWriter& json, std::string_view key, double number);
void WriteInteger(JsonWriter& json, std::string_view key, std::int64_t number);
void WriteCount(JsonWriter& json, std::string_view key, std::size_t count);

}  // namespace cli
