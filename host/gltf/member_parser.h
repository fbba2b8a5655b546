#pragma once

#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

namespace host::gltf {

// Listens to the parser of the JSON library and builds a document without those members of its
// outermost object that are not wanted: built, they would take many times the memory of their text.
class MemberParser final : public nlohmann::json_sax<nlohmann::json> {
 public:
  explicit MemberParser(std::set<std::string> wanted) : wanted_(std::move(wanted)) {}

  // What was built, when the parser has ended.
  nlohmann::json Take() { return std::move(document_); }

  bool null() override { return Add(nullptr); }
  bool boolean(bool value) override { return Add(value); }
  bool number_integer(number_integer_t value) override { return Add(value); }
  bool number_unsigned(number_unsigned_t value) override { return Add(value); }
  bool number_float(number_float_t value, const string_t& /*text*/) override { return Add(value); }
  bool string(string_t& value) override { return Add(std::move(value)); }
  bool binary(binary_t& /*value*/) override { return false; }  // not in JSON
  bool start_object(std::size_t /*size*/) override { return Open(nlohmann::json::object()); }
  bool start_array(std::size_t /*size*/) override { return Open(nlohmann::json::array()); }
  bool key(string_t& name) override;
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }
  bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                   const nlohmann::json::exception& /*error*/) override {
    return false;
  }

 private:
  bool IsUnwanted() const { return unwanted_depth_ > 0 || unwanted_member_; }

  // Puts `value` where it belongs.
  nlohmann::json& Place(nlohmann::json value);

  bool Add(nlohmann::json value);
  bool Open(nlohmann::json empty);
  bool Close();

  std::set<std::string> wanted_;
  nlohmann::json document_;
  std::vector<nlohmann::json*> open_;  // what has begun and not ended, the outermost first
  std::string key_;
  bool unwanted_member_ = false;
  std::size_t unwanted_depth_ = 0;
};

}  // namespace host::gltf
