#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

// JSON that becomes text at once. As objects in memory, the records of a scene of very many nodes
// take most of the time and several times the memory. The text is the one that nlohmann::json makes
// of the same values, whose members it has in the order of the alphabet; here they come in the
// order in which they are added, and who adds them sees to that.

namespace host::gltf {

// Append a value to `text`. Numbers that are not finite are no JSON.
// REQUIRES: a text is UTF-8.
void AppendValue(std::string& text, double value);
void AppendValue(std::string& text, std::string_view value);

template <std::integral Number>
void AppendValue(std::string& text, Number value) {
  constexpr std::size_t kMostDigits = 20;
  char digits[kMostDigits];
  text.append(digits, std::to_chars(digits, digits + kMostDigits, value).ptr);
}

template <typename List>
requires requires(const List& list) {
  list.begin() != list.end();
} &&(!std::convertible_to<List, std::string_view>)void AppendValue(std::string& text,
                                                                   const List& list) {
  char separator = '[';
  for (const auto& value : list) {
    text += separator;
    AppendValue(text, value);
    separator = ',';
  }
  text += list.begin() == list.end() ? "[]" : "]";
}

// A JSON object that is appended to a text, member by member. The text outlives it, and has nothing
// else appended before the object's end but through it.
class JsonObject {
 public:
  explicit JsonObject(std::string& text) : text_(text) {}

  template <typename Value>
  void Add(std::string_view name, const Value& value) {
    AppendValue(Member(name), value);
  }

  // The text, to append the value of the member `name` to.
  // REQUIRES: `name` needs no escapes.
  std::string& Member(std::string_view name) {
    text_ += separator_;
    text_ += '"';
    text_ += name;
    text_ += "\":";
    separator_ = ',';
    return text_;
  }

  // To be called once, when all members are there.
  // REQUIRES: there is one.
  void End() { text_ += '}'; }

 private:
  std::string& text_;
  char separator_ = '{';
};

}  // namespace host::gltf
