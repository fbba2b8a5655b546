#pragma once

#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <string_view>

// JSON that somebody else may have written, as the JSON library has it.

namespace host::gltf {

// The document in `text`. Throws a Refusal when it is none, or nested more than 100 deep: that is
// looked at before anything follows the nesting.
nlohmann::json ParsedJson(std::string_view text);

// The same of a document that is an object, with only those of its members that are in `names`.
nlohmann::json ParsedMembers(std::string_view text, const std::set<std::string>& names);

}  // namespace host::gltf
