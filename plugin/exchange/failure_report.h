#pragma once

// What the user is told about work that an exception has ended.
namespace orvane {

// Texts that stay.
struct FailureTexts {
  const char* title;
  const char* no_memory;
  const char* otherwise;
};

// What of `texts` tells of the exception that is being handled.
[[nodiscard]] const char* FailureText(const FailureTexts& texts) noexcept;

// Does `work`. Returns what is to be told when it throws, and otherwise null. It is told when the
// exception is over, and all that the work had begun is taken back: a message waits for its user,
// and within a page nothing can wait while an exception is being handled.
template <typename Work>
[[nodiscard]] const char* FailureOf(const Work& work, const FailureTexts& texts) noexcept {
  try {
    work();
    return nullptr;
  } catch (...) {
    return FailureText(texts);
  }
}

}  // namespace orvane
