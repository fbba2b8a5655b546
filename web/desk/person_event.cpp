#include "web/desk/person_event.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace web {
namespace {

using nlohmann::json;
using platform::RegistryType;

constexpr std::array<std::pair<RegistryType, const char*>, 4> kTypes = {
    {{RegistryType::kString, "text"},
     {RegistryType::kBinary, "binary"},
     {RegistryType::kDoubleWord, "int32"},
     {RegistryType::kQuadWord, "int64"}}};

// The member of that name, or null.
const json& MemberOf(const json& object, const char* name) {
  static const json none;
  const auto found = object.find(name);
  return found == object.end() ? none : *found;
}

std::string TextIn(const json& object, const char* name) {
  const json& member = MemberOf(object, name);
  return member.is_string() ? member.get<std::string>() : std::string();
}

std::int64_t Whole(const json& number) {
  return number.is_number() ? number.get<std::int64_t>() : 0;
}

int NumberIn(const json& object, const char* name) {
  return static_cast<int>(Whole(MemberOf(object, name)));
}

StoredValue ValueOf(const json& object) {
  StoredValue value;
  value.key = TextIn(object, "key");
  value.name = TextIn(object, "name");
  const std::string type = TextIn(object, "type");
  for (const auto& [its_type, name] : kTypes) {
    if (type == name) value.type = its_type;
  }
  for (const json& byte : MemberOf(object, "bytes")) {
    value.bytes.push_back(static_cast<char>(Whole(byte)));
  }
  return value;
}

void ReadLists(const json& object, PersonEvent& event) {
  for (const json& path : MemberOf(object, "paths")) {
    if (path.is_string()) event.paths.push_back(path.get<std::string>());
  }
  for (const json& node : MemberOf(object, "nodes")) {
    event.nodes.push_back(static_cast<std::uint32_t>(Whole(node)));
  }
  for (const json& value : MemberOf(object, "values")) {
    if (value.is_object()) event.values.push_back(ValueOf(value));
  }
  const json& range = MemberOf(object, "range");
  if (range.is_array() && range.size() == 2) {
    event.range.emplace(static_cast<int>(Whole(range[0])), static_cast<int>(Whole(range[1])));
  }
}

}  // namespace

std::optional<PersonEvent> ParseEvent(std::string_view text) {
  const json object = json::parse(text, nullptr, false);
  if (!object.is_object()) return std::nullopt;
  PersonEvent event;
  event.did = TextIn(object, "did");
  for (const char* const name : {"dialog", "box", "choice", "number"}) {
    event.number = std::max(event.number, NumberIn(object, name));
  }
  event.control = NumberIn(object, "control");
  event.text = TextIn(object, event.did == "answer" ? "button" : "text");
  event.node = static_cast<std::uint32_t>(NumberIn(object, "node"));
  event.standard = TextIn(object, "standard");
  event.frame = NumberIn(object, "frame");
  event.path = TextIn(object, "path");
  ReadLists(object, event);
  return event;
}

const char* NameOf(RegistryType type) {
  const auto found = std::find_if(kTypes.begin(), kTypes.end(),
                                  [type](const auto& each) { return each.first == type; });
  return found == kTypes.end() ? kTypes[1].second : found->second;
}

}  // namespace web
