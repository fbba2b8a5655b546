#pragma once

#include <array>
#include <span>
#include <string_view>

// What every verb is for, in a few sentences and two commands that do it: the help begins with
// them, and the manual tells them.

namespace cli {

struct Example {
  std::string_view command;  // words without blanks, as a shell takes them; "<" is one of them
  std::string_view effect;   // a phrase
};

struct VerbGuide {
  std::string_view verb;         // such as "map create"; empty for the program itself
  std::string_view description;  // sentences
  std::array<Example, 2> examples;
};

// Of all verbs. The examples, carried out in this order in a folder with the motion file, the
// marker file and the mapping that come with the program, find what they need.
[[nodiscard]] std::span<const VerbGuide> AllGuides();

// That of `verb`. Throws std::out_of_range when it has none.
[[nodiscard]] const VerbGuide& GuideOf(std::string_view verb);

}  // namespace cli
