#include "cli/map/picks_table.h"

#include <algorithm>
#include <limits>
#include <set>
#include <string_view>

#include "cli/common/input.h"
#include "formats/text/files.h"
#include "formats/text/lines.h"
#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "inspect/check/content_kind.h"
#include "inspect/check/findings.h"
#include "inspect/check/text_flaw.h"
#include "platform/input_file.h"

namespace cli {
namespace {

using orvane::FindMappingTextFlaw;

// What fits into one line of a mapping, whose tabs and break count, too; a bit less.
constexpr std::size_t kMostLetters = 1000;

// Of what is missing from all of a table.
constexpr std::size_t kNoLine = std::numeric_limits<std::size_t>::max();

// Of what is wrong with a table.
constexpr std::size_t kMostTold = 10;

std::string LineName(std::size_t number) {
  return "line " + orvane::FormatInt(static_cast<std::int64_t>(number));
}

}  // namespace

PicksTable::PicksTable(const std::string& path, const std::vector<std::string>& names,
                       const orvane::WristSticks& sticks)
    : path_(path) {
  Read(path);
  CheckSteps(sticks);
  CheckMarkers(names);
  if (!complaints_.empty()) throw Failure{ExitStatus::kRefused, Told()};
}

// A file that is no table has more that is wrong than anybody reads.
std::vector<Complaint> PicksTable::Told() const {
  if (what_it_is_) return {*what_it_is_};
  std::vector<Complaint> told;
  for (const auto& [line, complaint] : complaints_) told.push_back(complaint);
  const std::size_t most = lines_.empty() ? 1 : kMostTold;
  if (told.size() <= most) return told;
  const std::size_t others = told.size() - most;
  told.resize(most);
  told.back().advice =
      "And " + orvane::CountOf(others, "further problem") + ". " +
      (lines_.empty() ? "Is it a table of picks?" : "Is it the table of this file?");
  return told;
}

std::optional<std::string> PicksTable::PickFor(const std::string& standard_name) const {
  const auto pick = picks_.find(standard_name);
  return pick == picks_.end() ? std::nullopt : std::optional<std::string>(pick->second);
}

bool PicksTable::AreIn(const orvane::MarkerNameMap& mapping) const {
  return std::all_of(picks_.begin(), picks_.end(), [&mapping](const auto& pick) {
    std::string name = pick.second;
    return mapping.Lookup(name) && name == pick.first;
  });
}

void PicksTable::Read(const std::string& path) {
  std::string reason = platform::WhyUnreadable(path);
  const std::optional<std::string> bytes =
      reason.empty() ? orvane::ReadFileBytes(path) : std::nullopt;
  if (reason.empty() && !bytes) reason = "The file cannot be read to its end";
  if (!reason.empty()) throw Failure{ExitStatus::kInputOutput, {{path, reason, ""}}};
  // A mapping has the form of a table of picks.
  if (const auto kind = orvane::FindOtherKind(*bytes, orvane::ContentKind::kMnm)) {
    what_it_is_ = {path_, orvane::DescribeOtherKind(*kind, "a table of picks"), ""};
  } else if (const auto flaw = FindMappingTextFlaw(*bytes)) {
    what_it_is_ = ComplainAboutFlaw(path_, *flaw);
  }
  orvane::LineReader reader(*bytes);
  orvane::Line line;
  while (reader.Next(line)) ReadLine(line.text, line.number);
}

void PicksTable::ReadLine(std::string_view line, std::size_t number) {
  const std::string standard(orvane::TakeFirstToken(line));
  if (standard.empty() || standard[0] == '#') return;
  const std::string marker(orvane::TrimTrailingSeparators(orvane::SkipSeparators(line)));
  if (!orvane::IsStandardMarker(standard)) {
    return Complain(number, standard + " is no standard marker");
  }
  if (!lines_.emplace(standard, number).second) {
    return Complain(number, standard + " is there already, on " + LineName(lines_[standard]));
  }
  if (marker.empty()) return Complain(number, standard + " has no marker; - skips it");
  if (marker.find_first_of(" \t\v\f\r") != std::string::npos) {
    return Complain(number, "a name with blanks cannot be mapped: " + marker);
  }
  if (standard.size() + marker.size() > kMostLetters) {
    return Complain(number, "a name of more than a thousand letters cannot be mapped");
  }
  if (marker != "-") picks_[standard] = marker;
}

void PicksTable::Complain(std::size_t line, const std::string& text) {
  const std::string place = line == kNoLine ? "" : LineName(line) + ": ";
  complaints_.insert({line, {path_, place + text, ""}});
}

void PicksTable::CheckSteps(const orvane::WristSticks& sticks) {
  std::set<std::string> asked;
  for (std::size_t index = 0; index < orvane::kMarkerSteps; ++index) {
    const orvane::MarkerStep& step = orvane::MarkerStepAt(index, sticks);
    for (std::size_t i = 0; i < step.Count(); ++i) {
      const std::string name(step.markers.at(i).name);
      asked.insert(name);
      const bool is_skipped = picks_.count(name) == 0;
      if (is_skipped && !step.may_be_skipped) {
        Complain(kNoLine, name + " cannot be skipped, and there is no marker for it");
      }
    }
  }
  for (const auto& [name, line] : lines_) {
    if (picks_.count(name) == 0 || asked.count(name) > 0) continue;
    Complain(line, name + " is not asked for; --left-stick and --right-stick decide that");
  }
}

void PicksTable::CheckMarkers(const std::vector<std::string>& names) {
  std::map<std::string, int> counts;
  for (const std::string& name : names) ++counts[name];
  std::map<std::string, std::string> roles;
  for (const auto& [standard, marker] : picks_) {
    const std::size_t line = lines_[standard];
    const auto count = counts.find(marker);
    if (count == counts.end()) {
      Complain(line, "there is no marker " + marker);
    } else if (count->second > 1) {
      Complain(line, "there are several markers " + marker);
    }
    const auto [role, is_first] = roles.emplace(marker, standard);
    if (!is_first) Complain(line, marker + " is to be picked for " + role->second + " too");
  }
}

}  // namespace cli
