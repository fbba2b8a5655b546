#include "host/gltf/file/names.h"

#include <algorithm>
#include <cstddef>

namespace host::gltf {

namespace {

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

struct ByteRange {
  unsigned char first;
  unsigned char last;

  bool Contains(char byte) const {
    const auto value = static_cast<unsigned char>(byte);
    return first <= value && value <= last;
  }
};

// Well-formed characters, by their lead byte: what may follow it, and how many bytes follow in all.
// The second byte's narrower ranges keep out long forms, surrogates, and what is past U+10FFFF.
struct CharacterForm {
  ByteRange lead;
  ByteRange second;
  std::size_t length;
};

constexpr CharacterForm kForms[] = {
    {{0x01, 0x7F}, {0x00, 0x00}, 1}, {{0xC2, 0xDF}, {0x80, 0xBF}, 2},
    {{0xE0, 0xE0}, {0xA0, 0xBF}, 3}, {{0xE1, 0xEC}, {0x80, 0xBF}, 3},
    {{0xED, 0xED}, {0x80, 0x9F}, 3}, {{0xEE, 0xEF}, {0x80, 0xBF}, 3},
    {{0xF0, 0xF0}, {0x90, 0xBF}, 4}, {{0xF1, 0xF3}, {0x80, 0xBF}, 4},
    {{0xF4, 0xF4}, {0x80, 0x8F}, 4},
};
constexpr ByteRange kContinuation{0x80, 0xBF};

// The length of the character that `text` begins with, 0 when that is none.
std::size_t CharacterLength(std::string_view text) {
  const auto* form = std::find_if(
      std::begin(kForms), std::end(kForms),
      [&](const CharacterForm& candidate) { return candidate.lead.Contains(text[0]); });
  if (form == std::end(kForms) || text.size() < form->length) return 0;
  if (form->length > 1 && !form->second.Contains(text[1])) return 0;
  for (std::size_t i = 2; i < form->length; ++i) {
    if (!kContinuation.Contains(text[i])) return 0;
  }
  return form->length;
}

}  // namespace

std::string ViewerName(std::string_view bytes) {
  std::string name;
  name.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = CharacterLength(bytes);
    name += length == 0 ? kReplacementCharacter : bytes.substr(0, length);
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return name;
}

}  // namespace host::gltf
