#pragma once

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>

// JSON that somebody else may have written: whatever is not as expected is a Refusal that tells
// where.

namespace host::gltf {

// A value and the way to it, such as "nodes[3].parent". Every function throws a Refusal when the
// value is not what the function is for.
class JsonField {
 public:
  // `value` outlives this.
  JsonField(const nlohmann::json& value, std::string path)
      : value_(&value), path_(std::move(path)) {}

  // A member of an object, which must be there or need not be.
  JsonField Member(const std::string& name) const;
  std::optional<JsonField> FindMember(const std::string& name) const;

  // Elements of an array.
  std::size_t Size() const;

  // REQUIRES: `index` is less than Size().
  JsonField Element(std::size_t index) const;

  // As it is.
  const nlohmann::json& Value() const { return *value_; }

  bool Bool() const;
  const std::string& Text() const;
  double Number() const;

  // From `least` to `most`.
  std::int64_t Whole(std::int64_t least, std::int64_t most) const;
  std::int32_t Int() const;
  std::uint32_t Word() const;
  float Float() const;

  // Says that the value "is " `fault`.
  [[noreturn]] void Refuse(const std::string& fault) const;

 private:
  const nlohmann::json* value_;
  std::string path_;
};

}  // namespace host::gltf
