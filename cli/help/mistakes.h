#pragma once

#include <string>

#include "cli/common/failure.h"

// What is wrong with a command line, and what was meant.

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace cli {

// Why `app` could not parse its arguments: `error`, or a word that was not known before that.
[[nodiscard]] Failure WrongUsage(const CLI::App& app, const CLI::ParseError& error);

// That `app` has no verb `name`.
[[nodiscard]] Failure UnknownVerb(const CLI::App& app, const std::string& name);

// Throws a Failure when a word where `app`, which has parsed its arguments, takes a verb is none.
void RequireKnownVerbs(const CLI::App& app);

// The verb that these arguments named; the program itself when they named none.
[[nodiscard]] const CLI::App& VerbNamedLast(const CLI::App& app);

}  // namespace cli
