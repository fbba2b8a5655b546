#include "host/gltf/file/parsed_json.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "host/gltf/file/refusal.h"

namespace host::gltf {

namespace {

using nlohmann::json;

constexpr int kDeepestNesting = 100;

// Whether the brackets of `text`, those in strings left out, are nested too deep.
bool IsNestedTooDeep(std::string_view text) {
  int depth = 0;
  bool in_string = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (in_string) {
      if (character == '\\') ++i;
      in_string = character != '"';
    } else if (character == '"') {
      in_string = true;
    } else if (character == '{' || character == '[') {
      if (++depth > kDeepestNesting) return true;
    } else if (character == '}' || character == ']') {
      --depth;
    }
  }
  return false;
}

void RequireShallow(std::string_view text) {
  if (IsNestedTooDeep(text)) throw Refusal("The file is nested more than 100 deep.");
}

[[noreturn]] void RefuseText() {
  throw Refusal("The file is no glTF file, or it is damaged or cut short.");
}

// Listens to the parser of the JSON library and builds a document without those members of its
// outermost object that are not wanted: built, they would take many times the memory of their text.
class MemberParser final : public nlohmann::json_sax<json> {
 public:
  explicit MemberParser(std::set<std::string> wanted) : wanted_(std::move(wanted)) {}

  // What was built, when the parser has ended.
  json Take() { return std::move(document_); }

  bool null() override { return Add(nullptr); }
  bool boolean(bool value) override { return Add(value); }
  bool number_integer(number_integer_t value) override { return Add(value); }
  bool number_unsigned(number_unsigned_t value) override { return Add(value); }
  bool number_float(number_float_t value, const string_t& /*text*/) override { return Add(value); }
  bool string(string_t& value) override { return Add(std::move(value)); }
  bool binary(binary_t& /*value*/) override { return false; }  // not in JSON
  bool start_object(std::size_t /*size*/) override { return Open(json::object()); }
  bool start_array(std::size_t /*size*/) override { return Open(json::array()); }
  bool key(string_t& name) override;
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }
  bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                   const json::exception& /*error*/) override {
    return false;
  }

 private:
  bool IsUnwanted() const { return unwanted_depth_ > 0 || unwanted_member_; }

  // Puts `value` where it belongs.
  json& Place(json value);

  bool Add(json value);
  bool Open(json empty);
  bool Close();

  std::set<std::string> wanted_;
  json document_;
  std::vector<json*> open_;  // what has begun and not ended, the outermost first
  std::string key_;
  bool unwanted_member_ = false;
  std::size_t unwanted_depth_ = 0;
};

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

}  // namespace

json ParsedJson(std::string_view text) {
  RequireShallow(text);
  constexpr bool kThrow = false;
  json document = json::parse(text.begin(), text.end(), nullptr, kThrow);
  if (document.is_discarded()) RefuseText();
  return document;
}

json ParsedMembers(std::string_view text, const std::set<std::string>& names) {
  RequireShallow(text);
  MemberParser parser(names);
  if (!json::sax_parse(text.begin(), text.end(), &parser)) RefuseText();
  return parser.Take();
}

}  // namespace host::gltf
