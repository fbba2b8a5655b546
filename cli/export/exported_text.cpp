#include "cli/export/exported_text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace cli {
namespace {

constexpr std::string_view kBasePosition = "[BasePosition]\r\n";

// Of eight characters at once: none of those that numbers are written with has one of these bits.
constexpr std::uint64_t kBitsOfLetters = 0xC0C0C0C0C0C0C0C0U;

bool HasLetters(std::string_view text) {
  std::uint64_t bits = 0;
  while (!text.empty()) {
    std::uint64_t characters = 0;
    const std::size_t size = std::min(text.size(), sizeof characters);
    std::memcpy(&characters, text.data(), size);
    bits |= characters;
    text.remove_prefix(size);
  }
  return (bits & kBitsOfLetters) != 0;
}

bool IsRow(std::string_view line) {
  const char first = line.front();
  return (('0' <= first && first <= '9') || first == '-') && !HasLetters(line);
}

}  // namespace

void ExportedText::Take(std::string_view lines) {
  size_ += lines.size();
  while (!lines.empty()) {
    const std::size_t size = std::min(lines.find('\n'), lines.size() - 1) + 1;
    TakeLine(lines.substr(0, size));
    lines.remove_prefix(size);
  }
}

void ExportedText::TakeLine(std::string_view line) {
  if (part_ == Part::kBasePositions && line.starts_with('[')) part_ = Part::kMotion;
  if (part_ == Part::kHead && line == kBasePosition) part_ = Part::kBasePositions;
  const bool is_row = part_ == Part::kMotion && IsRow(line);
  const bool follows_row = is_row && is_behind_row_;
  is_behind_row_ = is_row;
  if (follows_row) {
    ++rows_.back();
    return;
  }
  if (is_row) rows_.push_back(1);
  kept_ += line;
}

}  // namespace cli
