#pragma once

#include <string>
#include <vector>

// Journals as files: texts that are checked in beside the test that keeps them. Lines at the top
// that begin with # say what the order is for; the journal follows.
namespace test {

using JournalLines = std::vector<std::string>;

// What `found` has in place of what `whole` has, which is the journal `name`: the lines between
// those that both begin with and those that both end with, under a line that tells `what` happened.
JournalLines Departure(const std::string& name, const std::string& what, const JournalLines& whole,
                       const JournalLines& found);

// `lines` with each group of one to three lines that comes three times or more in a row told once.
JournalLines Folded(const JournalLines& lines);

// The lines that both have, the ones of `expected` that are missing with a - before them and those
// that `found` has besides with a +; lines that both have and that are far from any difference are
// left out. Empty when both are the same.
std::string LineDifference(const JournalLines& expected, const JournalLines& found);

// Fails the test, and shows the difference, unless `lines` are what the file `path` holds. With
// ORVANE_UPDATE_JOURNALS=1 in the environment the file is written instead, its heading kept.
void ExpectJournal(const std::string& path, const JournalLines& lines);

}  // namespace test
