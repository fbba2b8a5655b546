#include "tests/support/posix/journal/journal_registry.h"

namespace test {
namespace {

std::string LastPart(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

std::string TypeName(platform::RegistryType type) {
  switch (type) {
    case platform::RegistryType::kString:
      return "string";
    case platform::RegistryType::kBinary:
      return "binary";
    case platform::RegistryType::kDoubleWord:
      return "double word";
    case platform::RegistryType::kQuadWord:
      return "quad word";
  }
  return "type " + std::to_string(static_cast<std::uint32_t>(type));
}

}  // namespace

platform::RegistryKey* JournalRegistry::CreateKey(platform::RegistryKey* parent, const char* path) {
  platform::RegistryKey* const key = own_.CreateKey(parent, path);
  journal_.Note("settings open ", path, " beneath ", NameOf(parent),
                key == nullptr ? ": refused" : "");
  if (key != nullptr) names_[key] = LastPart(path);
  return key;
}

void JournalRegistry::CloseKey(platform::RegistryKey* key) {
  if (key != nullptr) journal_.Note("settings close ", NameOf(key));
  own_.CloseKey(key);
}

bool JournalRegistry::QueryValue(platform::RegistryKey* key, const char* name, void* data,
                                 std::size_t& size) {
  const std::size_t room = size;
  const bool found = own_.QueryValue(key, name, data, size);
  const std::string bytes = found ? std::string(static_cast<const char*>(data), size) : "";
  const bool is_text = room > sizeof(double);  // where more than a number finds room
  journal_.Note("settings ", NameOf(key), " read ", name, " to ", room, " bytes: ",
                !found    ? "none"
                : is_text ? Quoted(bytes)
                          : Hexadecimal(bytes));
  return found;
}

bool JournalRegistry::SetValue(platform::RegistryKey* key, const char* name,
                               platform::RegistryType type, const void* data, std::size_t size) {
  const std::string bytes(static_cast<const char*>(data), size);
  const bool is_text = type == platform::RegistryType::kString;
  journal_.Note("settings ", NameOf(key), " write ", name, " ", TypeName(type), " ",
                is_text ? Quoted(bytes) : Hexadecimal(bytes));
  return own_.SetValue(key, name, type, data, size);
}

std::string JournalRegistry::NameOf(platform::RegistryKey* key) const {
  if (key == nullptr) return "the user's root";
  const auto found = names_.find(key);
  return found == names_.end() ? "an unknown key" : found->second;
}

}  // namespace test
