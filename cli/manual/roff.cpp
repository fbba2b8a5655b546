#include "cli/manual/roff.h"

namespace cli {
namespace {

// What would be a command of the language, or drawn as another character.
std::string_view Replacement(char character) {
  switch (character) {
    case '\\':
      return "\\e";
    case '-':
      return "\\-";
    case '\'':
      return "\\(aq";
    case '`':
      return "\\(ga";
    case '^':
      return "\\(ha";
    case '~':
      return "\\(ti";
    default:
      return {};
  }
}

}  // namespace

std::string Escaped(std::string_view text) {
  std::string escaped;
  if (!text.empty() && text.front() == '.') escaped = "\\&";
  for (const char character : text) {
    const std::string_view replacement = Replacement(character);
    escaped += replacement.empty() ? std::string_view(&character, 1) : replacement;
  }
  return escaped;
}

std::string Bold(std::string_view text) { return "\\fB" + Escaped(text) + "\\fR"; }

std::string Italic(std::string_view text) { return "\\fI" + Escaped(text) + "\\fR"; }

std::string Section(const std::string& title) { return ".SH " + title + "\n"; }

std::string Paragraph(const std::string& text) { return ".PP\n" + text + "\n"; }

std::string Entry(const std::string& tag, const std::string& text) {
  return ".TP\n" + tag + "\n" + text + "\n";
}

}  // namespace cli
