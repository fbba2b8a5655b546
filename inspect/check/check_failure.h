#pragma once

#include <stdexcept>
#include <string>

// Why nothing can be said of a file, though its bytes are there: the fault is not the file's.

namespace orvane {

// Thrown by the checks. what() is a text about the file, such as "was read wrongly: ...".
class CheckFailure : public std::runtime_error {
 public:
  CheckFailure(const std::string& text, std::string advice)
      : std::runtime_error(text), advice_(std::move(advice)) {}

  // What can be done about it: one sentence.
  const std::string& Advice() const { return advice_; }

 private:
  std::string advice_;
};

// Throws a CheckFailure when `message`, of a reader that has refused nothing, is not empty.
void RequireRead(const std::string& message);

// Throws a CheckFailure when `fault` is not empty: what a document checker found in what was read.
// It is a fault of this program, so that nothing it says of the file can be trusted.
void RequireSound(const std::string& fault);

}  // namespace orvane
