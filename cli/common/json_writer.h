#pragma once

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

// Writes JSON as it comes, so that a document of any size needs no memory, with every number in its
// shortest form; the JSON library builds a tree first and does not always find that form. Commas
// and line breaks come by themselves.

namespace cli {

class JsonWriter {
 public:
  // How the members of an object or array are laid out: each on a line of its own, or all on one.
  enum class Layout { kLines, kOneLine };

  // `out` must outlive the writer.
  explicit JsonWriter(std::ostream& out) : out_(out) {}

  // REQUIRES: what was begun last ends first, and no key waits for its value.
  void BeginObject() { Begin('{', Layout::kLines); }
  void EndObject() { End('}'); }
  void BeginArray(Layout layout) { Begin('[', layout); }
  void EndArray() { End(']'); }

  // The name of the object's next member.
  // REQUIRES: an object is open, and no key waits for its value.
  void Key(std::string_view name);

  // Bytes that are not UTF-8 are replaced by U+FFFD.
  void String(std::string_view text);

  // In the shortest form that reads back as the same value; null when it is not finite.
  void Number(double value);
  void Integer(std::int64_t value);
  void Bool(bool value);
  void Null();

 private:
  struct Level {
    Layout layout;
    bool empty = true;
  };

  void Begin(char bracket, Layout layout);
  void End(char bracket);
  void StartValue();
  void StartMember();
  void BreakLine();

  std::ostream& out_;
  std::vector<Level> levels_;
  bool after_key_ = false;
};

}  // namespace cli
