#include "tests/support/posix/journal/journal_text_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string_view>

#include "tests/support/files.h"

namespace test {
namespace {

using Lines = JournalLines;

constexpr char kNoHeading[] = "# What this order is for has to be said here.";

struct JournalFile {
  Lines heading;
  Lines lines;
};

JournalFile ReadJournal(const std::string& path) {
  JournalFile file;
  std::istringstream text(std::filesystem::exists(path) ? ReadTextFile(path) : "");
  for (std::string line; std::getline(text, line);) {
    const bool is_heading = file.lines.empty() && line.rfind('#', 0) == 0;
    (is_heading ? file.heading : file.lines).push_back(line);
  }
  return file;
}

std::string Joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

// How many lines from each place on the two have in common, in order: at [i][j] from line i of the
// one and line j of the other.
std::vector<std::vector<std::size_t>> CommonLengths(const Lines& left, const Lines& right) {
  std::vector<std::vector<std::size_t>> common(left.size() + 1,
                                               std::vector<std::size_t>(right.size() + 1));
  for (std::size_t i = left.size(); i-- > 0;) {
    for (std::size_t j = right.size(); j-- > 0;) {
      common[i][j] = left[i] == right[j] ? common[i + 1][j + 1] + 1
                                         : std::max(common[i + 1][j], common[i][j + 1]);
    }
  }
  return common;
}

// All lines of both, each after the sign that says who has it.
Lines Marked(const Lines& expected, const Lines& found) {
  const auto common = CommonLengths(expected, found);
  Lines marked;
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < expected.size() || j < found.size()) {
    if (i < expected.size() && j < found.size() && expected[i] == found[j]) {
      marked.push_back("  " + expected[i++]);
      ++j;
    } else if (i < expected.size() && (j == found.size() || common[i + 1][j] >= common[i][j + 1])) {
      marked.push_back("- " + expected[i++]);
    } else {
      marked.push_back("+ " + found[j++]);
    }
  }
  return marked;
}

// How often the `length` lines at `begin` stand there in a row.
std::size_t TimesInARow(const Lines& lines, std::size_t begin, std::size_t length) {
  std::size_t end = begin + length;
  while (end < lines.size() && lines[end] == lines[end - length]) ++end;
  return (end - begin) / length;
}

bool IsUpdated() {
  const char* const flag = std::getenv("ORVANE_UPDATE_JOURNALS");
  return flag != nullptr && std::string_view(flag) == "1";
}

}  // namespace

JournalLines Departure(const std::string& name, const std::string& what, const Lines& whole,
                       const Lines& found) {
  constexpr int kShortRest = 3;
  const auto begin = std::mismatch(whole.begin(), whole.end(), found.begin(), found.end());
  const auto end = std::mismatch(whole.rbegin(), std::make_reverse_iterator(begin.first),
                                 found.rbegin(), std::make_reverse_iterator(begin.second));
  const auto common = begin.second - found.begin();
  const auto rest = end.second - found.rbegin();
  const bool tells_rest = rest < kShortRest;
  Lines lines = {"--- " + what + ": as " + name + " for " + std::to_string(common) +
                 " lines, and then"};
  lines.insert(lines.end(), begin.second, tells_rest ? found.end() : end.second.base());
  if (!tells_rest) lines.push_back("--- and as " + name + " for the last " + std::to_string(rest));
  return lines;
}

JournalLines Folded(const JournalLines& lines) {
  constexpr std::size_t kLongestGroup = 3;
  constexpr std::size_t kFewest = 3;
  Lines folded;
  std::size_t at = 0;
  while (at < lines.size()) {
    std::size_t length = 1;
    while (length < kLongestGroup && TimesInARow(lines, at, length) < kFewest) ++length;
    const std::size_t times = TimesInARow(lines, at, length);
    const bool is_folded = times >= kFewest;
    const std::size_t told = is_folded ? length : 1;
    for (std::size_t i = 0; i < told; ++i) folded.push_back(lines[at + i]);
    if (is_folded) {
      folded.push_back("--- the last " + std::to_string(length) + " lines come " +
                       std::to_string(times) + " times");
    }
    at += is_folded ? times * length : 1;
  }
  return folded;
}

std::string LineDifference(const Lines& expected, const Lines& found) {
  constexpr std::size_t kContext = 3;
  const Lines marked = Marked(expected, found);
  std::vector<bool> shown(marked.size());
  for (std::size_t i = 0; i < marked.size(); ++i) {
    if (marked[i][0] == ' ') continue;
    const std::size_t first = i - std::min(i, kContext);
    const std::size_t end = std::min(i + kContext + 1, marked.size());
    for (std::size_t near = first; near < end; ++near) shown[near] = true;
  }
  std::string text;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    if (shown[i]) text += marked[i] + "\n";
    if (!shown[i] && i > 0 && shown[i - 1]) text += "  ...\n";
  }
  return text;
}

void ExpectJournal(const std::string& path, const Lines& lines) {
  JournalFile file = ReadJournal(path);
  if (IsUpdated()) {
    if (file.heading.empty()) file.heading = {kNoHeading};
    WriteFile(path, Joined(file.heading) + Joined(lines));
    return;
  }
  const std::string difference = LineDifference(file.lines, lines);
  EXPECT_TRUE(difference.empty())
      << "The journal is not the one in " << path << ": - is missing, + is new.\n"
      << difference
      << "When it should be, run the test with ORVANE_UPDATE_JOURNALS=1 and read what changed.";
  EXPECT_FALSE(file.heading.empty() || file.heading[0] == kNoHeading)
      << path << " does not say what its order is for";
}

}  // namespace test
