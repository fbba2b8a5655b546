#include "inspect/check/mnm_entries.h"

#include <algorithm>
#include <string>

#include "formats/mnm/standard_markers.h"
#include "formats/text/numbers.h"
#include "inspect/check/mnm_rules.h"
#include "inspect/check/similar_words.h"
#include "inspect/check/text_encoding.h"

namespace orvane::mnm {
namespace {

std::string LineNumber(std::size_t line) {
  return "line " + FormatInt(static_cast<std::int64_t>(line));
}

// The standard marker that `name` looks like; empty when there is none.
std::string_view StandardMarkerMeant(std::string_view name) {
  for (const bool sticks : {false, true}) {
    for (std::size_t step = 0; step < orvane::kMarkerSteps; ++step) {
      for (const auto& marker : MarkerStepAt(step, {sticks, sticks}).markers) {
        if (!marker.name.empty() && LooksLike(name, marker.name)) return marker.name;
      }
    }
  }
  return {};
}

std::string ExpectedStandardName(const MappingLine& line) {
  if (IsStandardMarker(line.given_trc_name)) {
    return Quote(line.given_trc_name) + " first, and then the capture's name";
  }
  const std::string_view meant = StandardMarkerMeant(line.given_standard_name);
  return meant.empty() ? "a standard marker" : Quote(meant);
}

}  // namespace

MappingEntries::MappingEntries(std::string_view bytes, FindingList& findings)
    : findings_(findings) {
  MappingLineReader reader(bytes);
  MappingLine line;
  while (reader.Next(line)) ReadLine(line);
  CheckCount();
}

const MappingEntry* MappingEntries::Find(std::string_view trc_name) const {
  const auto found = by_trc_name_.find(trc_name);
  return found == by_trc_name_.end() ? nullptr : &in_force_[found->second];
}

void MappingEntries::ReadLine(const MappingLine& line) {
  ++lines_;
  line_.Set(line.line);
  CheckBytes();
  if (line.given_standard_name.empty()) return AddBlank(line);
  CheckStandardName(line);
  CheckEncoding(line.given_standard_name);
  CheckEncoding(line.given_trc_name);
  if (!line.rest.empty()) AddRestIgnored(line);
  AddEntry(line);
}

void MappingEntries::CheckBytes() {
  const std::string_view text = line_.Text();
  if (const std::string_view mark = line_.ByteOrderMark(); !mark.empty()) {
    findings_.Add(Rule("mnm-byte-order-mark"), PlaceOf(mark), [] {
      return FindingWords{"a byte-order mark", "text without one, in ASCII or UTF-8",
                          "It belongs to the first name, which is then not what it looks like."};
    });
  }
  if (line_.Continues()) {
    findings_.Add(Rule("mnm-line-cut"), PlaceOf(text), [] {
      return FindingWords{"a line of more than 1022 bytes", "shorter lines",
                          "It is read as several lines, of which one starts here."};
    });
  }
  if (line_.IsCutByNul()) {
    findings_.Add(Rule("mnm-nul"), PlaceOf(text.substr(text.size())), [] {
      return FindingWords{"a NUL byte", "text", "The rest of its line is not read."};
    });
  }
}

void MappingEntries::AddBlank(const MappingLine& line) {
  findings_.Add(Rule("mnm-line-blank"), PlaceOf(line.line.text), [this] {
    return FindingWords{"a blank line", "an entry",
                        lines_ == 1 ? "It maps a marker without a name to nothing."
                                    : "It repeats the entry before it, which changes nothing."};
  });
}

void MappingEntries::AddNameMissing(const MappingLine& line) {
  findings_.Add(Rule("mnm-name-missing"), PlaceOf(line.given_standard_name), [this, &line] {
    return FindingWords{"the one word " + Quote(line.given_standard_name),
                        "a standard marker and the capture's name for it",
                        last_trc_name_.empty()
                            ? "It maps a marker without a name."
                            : "The marker of the line before is taken, " + Quote(last_trc_name_) +
                                  ", which has its entry already: the line changes nothing."};
  });
}

void MappingEntries::AddRestIgnored(const MappingLine& line) {
  findings_.Add(Rule("mnm-rest-ignored"), PlaceOf(line.rest), [&line] {
    return FindingWords{
        Quote(line.rest), "the end of the line",
        "It is ignored: names end at the first blank, so that one with blanks cannot be mapped."};
  });
}

void MappingEntries::CheckEncoding(std::string_view name) {
  if (IsUtf8(name)) return;
  findings_.Add(Rule("mnm-name-encoding"), PlaceOf(name), [name] {
    return FindingWords{Quote(name), "a name in ASCII or UTF-8",
                        "It is of no marker but one that is written in these very bytes."};
  });
}

void MappingEntries::CheckStandardName(const MappingLine& line) {
  if (IsStandardMarker(line.given_standard_name)) return;
  findings_.Add(Rule("mnm-standard-unknown"), PlaceOf(line.given_standard_name), [&line] {
    return FindingWords{Quote(line.given_standard_name), ExpectedStandardName(line),
                        "The converted file has a marker of this name all the same."};
  });
}

void MappingEntries::AddEntry(const MappingLine& line) {
  const bool is_whole = !line.given_trc_name.empty();
  if (!is_whole) AddNameMissing(line);
  if (is_whole) last_trc_name_ = line.given_trc_name;

  const std::string_view named = is_whole ? line.given_trc_name : line.given_standard_name;
  const MappingEntry entry{line.given_standard_name, last_trc_name_, line_.Number(),
                           line_.ColumnOf(named)};
  const auto [first, is_new] = by_trc_name_.try_emplace(entry.trc_name, in_force_.size());
  if (is_new) {
    CheckStandardTaken(entry, line_.ColumnOf(line.given_standard_name));
    by_standard_name_.try_emplace(entry.standard_name, in_force_.size());
    in_force_.push_back(entry);
  } else if (is_whole) {
    AddSuperfluous(entry, in_force_[first->second]);
  }
}

void MappingEntries::CheckStandardTaken(const MappingEntry& entry, std::size_t column) {
  const auto taken = by_standard_name_.find(entry.standard_name);
  if (taken == by_standard_name_.end()) return;
  const MappingEntry& first = in_force_[taken->second];
  findings_.Add(Rule("mnm-standard-twice"), FindingPlace{entry.line, column}, [&] {
    return FindingWords{
        Quote(entry.standard_name) + " again", "it once; " + LineNumber(first.line) + " has it",
        "A capture with " + Quote(first.trc_name) + " and " + Quote(entry.trc_name) +
            " becomes a file with two markers of this name."};
  });
}

void MappingEntries::AddSuperfluous(const MappingEntry& entry, const MappingEntry& first) {
  const bool is_same = entry.standard_name == first.standard_name;
  findings_.Add(is_same ? Rule("mnm-entry-doubled") : Rule("mnm-entry-shadowed"), entry, [&] {
    return FindingWords{Quote(entry.trc_name) + " again",
                        "it once; " + LineNumber(first.line) + " has it",
                        is_same ? "The line changes nothing."
                                : "The line is ignored: the marker is " +
                                      Quote(first.standard_name) + ", as the earlier one says."};
  });
}

void MappingEntries::CheckCount() {
  if (lines_ > 0) return;
  findings_.Add(Rule("mnm-entries-missing"), FindingPlace{1, 1},
                {"an empty file", "an entry for every marker to keep",
                 "Every marker of a capture is dropped."});
}

}  // namespace orvane::mnm
