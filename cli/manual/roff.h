#pragma once

#include <string>
#include <string_view>

// Text in the language of manual pages.

namespace cli {

// `text`, so that a page shows it as it is, wherever it stands in a line.
[[nodiscard]] std::string Escaped(std::string_view text);

// The same, in the font of what is typed, or of what stands for something else.
[[nodiscard]] std::string Bold(std::string_view text);
[[nodiscard]] std::string Italic(std::string_view text);

[[nodiscard]] std::string Section(const std::string& title);

// A line of the page's language for a paragraph or a list's entry, whose tag hangs before its text.
[[nodiscard]] std::string Paragraph(const std::string& text);
[[nodiscard]] std::string Entry(const std::string& tag, const std::string& text);

}  // namespace cli
