#include "platform/resource_text.h"

namespace platform {
namespace {

constexpr std::uint16_t kNumberFollows = 0xFFFF;
constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// `marker` is the upper bits of the first byte; every further byte holds six bits.
void AppendBytes(std::string& text, char32_t code, unsigned marker, unsigned shift) {
  text += static_cast<char>(marker | code >> shift);
  while (shift > 0) {
    shift -= 6;
    text += static_cast<char>(0x80U | (code >> shift & 0x3FU));
  }
}

void AppendUtf8(std::string& text, char32_t code) {
  if (code < 0x80) {
    AppendBytes(text, code, 0, 0);
  } else if (code < 0x800) {
    AppendBytes(text, code, 0xC0, 6);
  } else if (code < 0x10000) {
    AppendBytes(text, code, 0xE0, 12);
  } else {
    AppendBytes(text, code, 0xF0, 18);
  }
}

class Utf8Builder {
 public:
  void Add(char16_t unit) {
    if (high_ != 0 && IsLowSurrogate(unit)) {
      AppendUtf8(text_, 0x10000 + ((high_ - 0xD800U) << 10U) + (unit - 0xDC00U));
      high_ = 0;
      return;
    }
    DropHigh();
    if (IsHighSurrogate(unit)) {
      high_ = unit;
    } else {
      AppendUtf8(text_, IsLowSurrogate(unit) ? kReplacement : char32_t{unit});
    }
  }

  std::string Finish() {
    DropHigh();
    return std::move(text_);
  }

 private:
  void DropHigh() {
    if (high_ != 0) AppendUtf8(text_, kReplacement);
    high_ = 0;
  }

  std::string text_;
  char32_t high_ = 0;  // a first half that waits for its second
};

// Reads units up to a zero, `unit` being the first.
std::string ReadTextFrom(ByteReader& reader, std::uint16_t unit) {
  Utf8Builder text;
  for (; unit != 0; unit = reader.Read16()) text.Add(unit);
  return text.Finish();
}

}  // namespace

std::string Utf8FromUtf16(std::span<const std::byte> utf16) {
  ByteReader reader(utf16);
  Utf8Builder text;
  for (std::size_t i = 0; i < utf16.size() / 2; ++i) text.Add(reader.Read16());
  return text.Finish();
}

std::string ReadText(ByteReader& reader) { return ReadTextFrom(reader, reader.Read16()); }

ResourceName ReadName(ByteReader& reader) {
  const std::uint16_t first = reader.Read16();
  if (first == kNumberFollows) return {reader.Read16(), ""};
  return {std::nullopt, ReadTextFrom(reader, first)};
}

}  // namespace platform
