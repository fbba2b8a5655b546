#include "cli/common/json_members.h"

namespace cli {

void WriteText(JsonWriter& json, std::string_view key, std::string_view text) {
  json.Key(key);
  json.String(text);
}

void WriteTextOrNull(JsonWriter& json, std::string_view key, std::string_view text) {
  if (!text.empty()) return WriteText(json, key, text);
  json.Key(key);
  json.Null();
}

void WriteTexts(JsonWriter& json, std::string_view key, const std::vector<std::string>& texts) {
  json.Key(key);
  json.BeginArray(JsonWriter::Layout::kOneLine);
  for (const std::string& text : texts) json.String(text);
  json.EndArray();
}

void WriteNumber(JsonWriter& json, std::string_view key, double number) {
  json.Key(key);
  json.Number(number);
}

void WriteInteger(JsonWriter& json, std::string_view key, std::int64_t number) {
  json.Key(key);
  json.Integer(number);
}

void WriteCount(JsonWriter& json, std::string_view key, std::size_t count) {
  WriteInteger(json, key, static_cast<std::int64_t>(count));
}

}  // namespace cli
