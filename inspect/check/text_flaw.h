#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "inspect/check/findings.h"

// What makes a whole file other than the text that its reader takes it for. The reader meets only
// what follows from it: a person is told the flaw first. Nothing is kept of the bytes, and nothing
// fails but for want of memory.

namespace orvane {

enum class TextFlaw {
  kEmpty,            // no text at all
  kUtf16,            // in either byte order, with or without a byte-order mark
  kCarriageReturns,  // lines end with them alone, so that none ends
  kMarkedSection,    // of HTR: a byte-order mark keeps the first line from being a section line
  kMarkedName,       // of mappings: a byte-order mark belongs to the first name
};
inline constexpr std::size_t kTextFlaws = 5;

// As many bytes from the start of a file as show its flaw: what is behind them is not looked at.
inline constexpr std::size_t kBytesThatShowFlaws = std::size_t{64} << 10U;

// The flaw of a file that has, or starts with, these `bytes`; nothing when it has none.
// FindTextFlaw knows those that a file of any kind can have, the others also the one of motion
// files, or of mappings and tables of picks.
[[nodiscard]] std::optional<TextFlaw> FindTextFlaw(std::string_view bytes);
[[nodiscard]] std::optional<TextFlaw> FindHtrTextFlaw(std::string_view bytes);
[[nodiscard]] std::optional<TextFlaw> FindMappingTextFlaw(std::string_view bytes);

// What is said of a flaw. The texts live as long as the program.
struct TextFlawWords {
  const char* text;      // "The file is empty"
  const char* advice;    // what to do about it, one sentence
  const char* found;     // the same as a finding has it: "an empty file"
  const char* expected;  // what should have stood there
};
[[nodiscard]] const TextFlawWords& WordsFor(TextFlaw flaw);

// Puts `flaw`, by `rule`, in the place of all `findings`: they follow from it, or are told when it
// is mended. `effect` ends the finding.
void NameFlawAlone(TextFlaw flaw, const FindingRule& rule, const std::string& effect,
                   FindingList& findings);

}  // namespace orvane
