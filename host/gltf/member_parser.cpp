#include "host/gltf/member_parser.h"

#include <utility>

namespace host::gltf {

using nlohmann::json;

bool MemberParser::key(string_t& name) {
  if (unwanted_depth_ > 0) return true;
  unwanted_member_ = open_.size() == 1 && wanted_.count(name) == 0;
  key_ = std::move(name);
  return true;
}

json& MemberParser::Place(json value) {
  if (open_.empty()) return document_ = std::move(value);
  json& parent = *open_.back();
  if (parent.is_object()) return parent[key_] = std::move(value);
  return parent.emplace_back(std::move(value));
}

bool MemberParser::Add(json value) {
  if (!IsUnwanted()) Place(std::move(value));
  return true;
}

bool MemberParser::Open(json empty) {
  if (IsUnwanted()) {
    ++unwanted_depth_;
  } else {
    open_.push_back(&Place(std::move(empty)));
  }
  return true;
}

bool MemberParser::Close() {
  if (unwanted_depth_ > 0) {
    --unwanted_depth_;
  } else {
    open_.pop_back();
  }
  return true;
}

}  // namespace host::gltf
