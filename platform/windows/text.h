#pragma once

#include <string>

// Between the program's texts, which are UTF-8, and those of the system's wide functions. The
// module does not use them: what it gets from the host and hands back is in the system's narrow
// encoding.

namespace platform {

// What is not valid in the one encoding becomes U+FFFD in the other.
[[nodiscard]] std::wstring WideFromUtf8(const std::string& text);
[[nodiscard]] std::string Utf8FromWide(const std::wstring& text);

// The system's words for its error `number`, or for the last one of this thread, without a line
// end. Errors that the C library knows have its words, as in the rest of the program.
[[nodiscard]] std::string ErrorText(unsigned long number);
[[nodiscard]] std::string LastErrorText();

}  // namespace platform
