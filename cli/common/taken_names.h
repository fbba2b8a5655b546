#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "cli/common/failure.h"
#include "cli/common/json_writer.h"
#include "inspect/mapping/name_matching.h"

// The flag that says which names of markers are the same as those of a mapping, and what is told of
// those that are taken for others.

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace cli {

// Adds the flag to `verb` that sets `names`, which must outlive the parsing. Returns its option.
CLI::Option* AddNamesFlag(CLI::App& verb, orvane::NameMatching& names);

// "39 names of "anna:" are taken for those of "walker:"", one line; empty when none is taken.
[[nodiscard]] std::string DescribeTaken(const orvane::NameMatch& match);

// Prints that of `file`, if there is anything to tell, which is the first of `files` of which it is
// told.
void TellOfTaken(const std::string& file, const orvane::NameMatch& match, std::size_t files = 1);

// Why `file` is refused, whose names could be those of a mapping in several ways; nothing when
// they could not.
[[nodiscard]] std::optional<Complaint> FindAmbiguity(const std::string& file,
                                                     const orvane::NameMatch& match);

// The names that are taken, as an array of pairs.
void WriteTaken(JsonWriter& json, const orvane::NameMatch& match);

}  // namespace cli
