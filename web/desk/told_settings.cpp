#include "web/desk/told_settings.h"

#include <sstream>
#include <utility>

#include "web/desk/told.h"

namespace web {
namespace {

using Layout = cli::JsonWriter::Layout;

void WriteValue(cli::JsonWriter& json, const std::string& key, const std::string& name,
                const host::RegistryValue& value) {
  json.BeginObject();
  cli::WriteText(json, "key", key);
  cli::WriteText(json, "name", name);
  cli::WriteText(json, "type", NameOf(value.type));
  json.Key("bytes");
  json.BeginArray(Layout::kOneLine);
  for (const char byte : value.bytes) json.Integer(static_cast<unsigned char>(byte));
  json.EndArray();
  json.EndObject();
}

}  // namespace

void Store(const std::vector<StoredValue>& values, LinkedSettings& settings) {
  host::MemoryRegistry& registry = settings.Registry();
  for (const StoredValue& value : values) {
    platform::RegistryKey* const key = registry.CreateKey(nullptr, value.key.c_str());
    registry.SetValue(key, value.name.c_str(), value.type, value.bytes.data(), value.bytes.size());
    registry.CloseKey(key);
  }
}

void ToldSettings::Update(LinkedSettings& settings) {
  std::ostringstream text;
  cli::JsonWriter json(text);
  json.BeginObject();
  cli::WriteText(json, "tell", "settings");
  json.Key("values");
  json.BeginArray(Layout::kLines);
  bool is_any = false;
  for (const auto& [key, values] : settings.Registry().AllKeys()) {
    for (const auto& [name, value] : values) WriteValue(json, key, name, value);
    is_any = is_any || !values.empty();
  }
  json.EndArray();
  json.EndObject();
  if (text.str() == told_ || (told_.empty() && !is_any)) return;
  told_ = text.str();
  Tell(told_);
}

}  // namespace web
