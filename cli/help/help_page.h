#pragma once

#include <memory>
#include <string>

#include "cli/help/examples.h"

// The help of the program and of its verbs, as text of 80 columns.

namespace CLI {
class App;
class FormatterBase;
}  // namespace CLI

namespace cli {

// What makes the help of an app: what it is for, two examples, and what it takes. Every app but the
// program itself is a verb that there is a guide to.
[[nodiscard]] std::shared_ptr<CLI::FormatterBase> MakeHelpPages();

// The lines that show the examples of `guide`.
[[nodiscard]] std::string ExamplesOf(const VerbGuide& guide);

}  // namespace cli
