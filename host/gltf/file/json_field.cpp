#include "host/gltf/file/json_field.h"

#include <cassert>
#include <cmath>
#include <limits>

#include "host/base/number_range.h"
#include "host/gltf/file/refusal.h"

namespace host::gltf {

void JsonField::Refuse(const std::string& fault) const {
  throw Refusal("The scene in the file is damaged: " + (path_.empty() ? "the file" : path_) +
                " is " + fault + ".");
}

std::optional<JsonField> JsonField::FindMember(const std::string& name) const {
  if (!value_->is_object()) Refuse("no object");
  const auto found = value_->find(name);
  if (found == value_->end()) return std::nullopt;
  return JsonField(*found, path_.empty() ? name : path_ + "." + name);
}

JsonField JsonField::Member(const std::string& name) const {
  auto found = FindMember(name);
  if (!found) JsonField(*value_, path_.empty() ? name : path_ + "." + name).Refuse("missing");
  return *found;
}

std::size_t JsonField::Size() const {
  if (!value_->is_array()) Refuse("no array");
  return value_->size();
}

JsonField JsonField::Element(std::size_t index) const {
  assert(value_->is_array() && index < value_->size());
  return {(*value_)[index], path_ + "[" + std::to_string(index) + "]"};
}

bool JsonField::Bool() const {
  if (!value_->is_boolean()) Refuse("neither true nor false");
  return value_->get<bool>();
}

const std::string& JsonField::Text() const {
  if (!value_->is_string()) Refuse("no text");
  return value_->get_ref<const std::string&>();
}

double JsonField::Number() const {
  if (!value_->is_number()) Refuse("no number");
  return value_->get<double>();
}

std::int64_t JsonField::Whole(std::int64_t least, std::int64_t most) const {
  const double number = Number();
  const bool within = static_cast<double>(least) <= number && number <= static_cast<double>(most);
  if (!within || std::trunc(number) != number) {
    Refuse("no whole number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return static_cast<std::int64_t>(number);
}

std::int32_t JsonField::Int() const {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(Whole(Limits::min(), Limits::max()));
}

std::uint32_t JsonField::Word() const {
  return static_cast<std::uint32_t>(Whole(0, std::numeric_limits<std::uint32_t>::max()));
}

float JsonField::Float() const {
  const double number = Number();
  if (!FitsFloat(number)) Refuse("too large");
  return static_cast<float>(number);
}

}  // namespace host::gltf
