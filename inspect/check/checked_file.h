#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "inspect/check/findings.h"

// What comes of the check of one file: all that was found in it, or why nothing can be said of it,
// though its bytes are there. A CheckedFile holds copies of what it quotes, so that the bytes may
// go. It is a value: threads may read one together, and each may change its own.

namespace orvane {

struct CheckedFile {
  std::string file;       // the name that it is known as
  std::string_view kind;  // "HTR"; lives as long as the program
  std::string contents;   // in a few words, such as "21 segments, 120 frames"
  FindingList findings;
  std::string refusal{};  // what the reader says when it refuses the file; empty when it does not
};

// Thrown by the checks; the fault is not the file's. what() is a text about the file, such as
// "was read wrongly: ...".
class CheckFailure : public std::runtime_error {
 public:
  CheckFailure(const std::string& text, std::string advice)
      : std::runtime_error(text), advice_(std::move(advice)) {}

  // What can be done about it: one sentence.
  [[nodiscard]] const std::string& Advice() const { return advice_; }

 private:
  std::string advice_;
};

// Throws a CheckFailure when `message`, of a reader that has refused nothing, is not empty.
void RequireRead(const std::string& message);

// Throws a CheckFailure when `fault` is not empty: what a document checker found in what was read.
// It is a fault of this program, so that nothing it says of the file can be trusted.
void RequireSound(const std::string& fault);

}  // namespace orvane
