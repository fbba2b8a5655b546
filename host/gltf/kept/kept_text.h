#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "host/gltf/file/json_field.h"
#include "host/gltf/file/json_text.h"

// Texts of the host in the record of a kept scene. They are bytes that end at a zero byte, and JSON
// holds nothing but UTF-8: others stand under a name of their own, in hexadecimal.

namespace host::gltf {

// Set the member `name` of `record`, in whichever form `bytes` need.
void SetText(nlohmann::json& record, const std::string& name, const std::string& bytes);
void AddText(JsonObject& record, const std::string& name, const std::string& bytes);

// The text that `record` has under `name`, in either form. Throws a Refusal when it has none, or
// one that is damaged or has a zero byte.
std::string TextOf(const JsonField& record, const std::string& name);

}  // namespace host::gltf
