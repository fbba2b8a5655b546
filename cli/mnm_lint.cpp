#include "cli/mnm_lint.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cli/file_kind.h"
#include "cli/input.h"
#include "cli/similar_words.h"
#include "platform/input_file.h"
#include "plugin/mnm/mapping_lines.h"
#include "plugin/mnm/standard_markers.h"
#include "plugin/text/files.h"
#include "plugin/text/numbers.h"
#include "plugin/trc/document.h"

namespace cli {
namespace {

constexpr FindingSeverity kNote = FindingSeverity::kNote;
constexpr FindingSeverity kWarning = FindingSeverity::kWarning;

constexpr FindingRule kNameMissing{"mnm-name-missing", kWarning};
constexpr FindingRule kRestIgnored{"mnm-rest-ignored", kWarning};
constexpr FindingRule kLineCut{"mnm-line-cut", kWarning};
constexpr FindingRule kStandardUnknown{"mnm-standard-unknown", kWarning};
constexpr FindingRule kStandardTwice{"mnm-standard-twice", kWarning};
constexpr FindingRule kDoubled{"mnm-entry-doubled", kNote};
constexpr FindingRule kShadowed{"mnm-entry-shadowed", kWarning};
constexpr FindingRule kUnused{"mnm-entry-unused", kWarning};
constexpr FindingRule kUnmapped{"mnm-marker-unmapped", kWarning};
constexpr FindingRule kUnmappable{"mnm-marker-with-blanks", kWarning};

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

std::string OnLine(std::size_t number) {
  return "line " + orvane::FormatInt(static_cast<std::int64_t>(number));
}

std::string Entries(std::size_t count) {
  const std::string number = orvane::FormatInt(static_cast<std::int64_t>(count));
  return number + (count == 1 ? " entry" : " entries");
}

std::string BytesOf(const std::string& file) {
  std::string reason = platform::WhyUnreadable(file);
  if (reason.empty()) {
    if (auto bytes = orvane::ReadFileBytes(file)) return std::move(*bytes);
    reason = "The file cannot be read to its end";
  }
  throw Failure{ExitStatus::kInputOutput, {{file, reason, ""}}};
}

// The marker names of `file`, in the order of their columns.
std::vector<std::string> MarkersOf(const std::string& file) {
  orvane::TRCDocument document;
  const std::string message = document.Read(file, false);
  if (!message.empty()) throw Failure{ExitStatus::kRefused, {ComplainAbout(file, message)}};
  std::vector<std::string> names;
  for (const orvane::TRCMarker& marker : document.markers()) names.push_back(marker.Name());
  return names;
}

// What is left of a line behind its first two words; empty when that is white space.
std::string_view RestOf(std::string_view line) {
  for (int word = 0; word < 2; ++word) {
    const std::size_t begin = line.find_first_not_of(kWhiteSpace);
    if (begin == std::string_view::npos) return {};
    line.remove_prefix(begin);
    const std::size_t end = line.find_first_of(kWhiteSpace);
    if (end == std::string_view::npos) return {};
    line.remove_prefix(end);
  }
  const std::size_t begin = line.find_first_not_of(kWhiteSpace);
  return begin == std::string_view::npos ? std::string_view() : line.substr(begin);
}

class MappingLint {
 public:
  // Without markers the entries are looked at by themselves.
  explicit MappingLint(std::optional<std::vector<std::string>> markers)
      : markers_(std::move(markers)) {
    if (markers_) known_markers_.insert(markers_->begin(), markers_->end());
  }

  FindingList Run(std::string_view bytes) {
    orvane::MappingLineReader reader(bytes);
    orvane::MappingLine line;
    while (reader.Next(line)) {
      LookAtWords(line, ColumnOf(line, bytes));
      LookAtEntry(line);
      last_line_ = line.number;
    }
    if (markers_) LookAtMarkers();
    return std::move(findings_);
  }

  std::size_t Entries() const { return entries_; }

 private:
  // Where a piece starts in the line that it belongs to, counted from 1.
  std::size_t ColumnOf(const orvane::MappingLine& line, std::string_view bytes) {
    const auto offset = static_cast<std::size_t>(line.text.data() - bytes.data());
    if (line.number != last_line_) line_start_ = offset;
    return offset - line_start_ + 1;
  }

  void Add(const FindingRule& rule, std::size_t line, std::size_t column, std::string found,
           std::string expected, std::string effect) {
    if (Finding* const finding = findings_.Add(rule, line, column)) {
      finding->found = std::move(found);
      finding->expected = std::move(expected);
      finding->effect = std::move(effect);
    }
  }

  void LookAtWords(const orvane::MappingLine& line, std::size_t column) {
    if (line.number == last_line_) {
      Add(kLineCut, line.number, column, "a longer line", "at most 1,023 characters",
          "What stands here counts as a line of its own");
    }
    if (line.words < 2) {
      Add(kNameMissing, line.number, column, line.words == 0 ? "a blank line" : "one word",
          "a standard name and a marker name",
          "The entry pairs " + Quote(line.standard_name) + " with " + Quote(line.trc_name) +
              ", as far as it goes from the line before");
    }
    if (const std::string_view rest = RestOf(line.text); !rest.empty()) {
      Add(kRestIgnored, line.number,
          column + static_cast<std::size_t>(rest.data() - line.text.data()), Quote(rest),
          "the end of the line",
          "It is ignored: a name with blanks cannot be mapped, and only " + Quote(line.trc_name) +
              " is");
    }
  }

  void LookAtEntry(const orvane::MappingLine& line) {
    ++entries_;
    const std::string& standard = line.standard_name;
    const std::string& marker = line.trc_name;
    if (!orvane::IsStandardMarker(standard)) {
      Add(kStandardUnknown, line.number, 1, Quote(standard), "a standard marker name",
          "The marker gets that name, which the character animation may not know");
    }
    const auto [first, is_first] = first_.try_emplace(marker, First{standard, line.number});
    if (is_first) return LookAtFirst(line);
    if (first->second.standard_name == standard) {
      Add(kDoubled, line.number, 1, Quote(marker), "each marker name once",
          "It says the same as " + OnLine(first->second.line));
    } else {
      Add(kShadowed, line.number, 1, Quote(marker), "each marker name once",
          "It has no effect: " + OnLine(first->second.line) + " maps the marker to " +
              Quote(first->second.standard_name));
    }
  }

  // An entry that has an effect.
  void LookAtFirst(const orvane::MappingLine& line) {
    const auto [first, is_first] = by_standard_.try_emplace(line.standard_name, line.number);
    if (!is_first) {
      Add(kStandardTwice, line.number, 1, Quote(line.standard_name), "each standard name once",
          "Two markers get that name: that of " + OnLine(first->second) + ", and this one");
    }
    if (markers_ && known_markers_.count(line.trc_name) == 0) {
      Add(kUnused, line.number, 1, Quote(line.trc_name), "a marker of the file" + Similar(line),
          "The entry has no effect on that file");
    }
  }

  std::string Similar(const orvane::MappingLine& line) const {
    for (const std::string& name : *markers_) {
      if (LooksLike(line.trc_name, name)) return ", perhaps " + Quote(name);
    }
    return "";
  }

  void LookAtMarkers() {
    for (const std::string& name : *markers_) {
      if (first_.count(name) > 0) continue;
      if (name.find_first_of(kWhiteSpace) != std::string::npos) {
        Add(kUnmappable, last_line_ + 1, 1, Quote(name), "a marker name without blanks",
            "The marker cannot be mapped, and a filtered conversion leaves it out");
      } else {
        Add(kUnmapped, last_line_ + 1, 1, "no entry for " + Quote(name), "one for every marker",
            "A filtered conversion leaves the marker out");
      }
    }
  }

  struct First {
    std::string standard_name;
    std::size_t line;
  };

  std::optional<std::vector<std::string>> markers_;
  std::unordered_set<std::string> known_markers_;
  FindingList findings_;
  std::unordered_map<std::string, First> first_;  // by marker name
  std::unordered_map<std::string, std::size_t> by_standard_;
  std::size_t entries_ = 0;
  std::size_t last_line_ = 0;
  std::size_t line_start_ = 0;
};

}  // namespace

CheckedFile LintMappingFile(const std::string& file, const std::string& trc_file) {
  const std::string bytes = BytesOf(file);
  std::optional<std::vector<std::string>> markers;
  if (!trc_file.empty()) markers = MarkersOf(ReadableFile(trc_file, FileKind::kTrc));
  MappingLint lint(std::move(markers));
  CheckedFile checked;
  checked.file = file;
  checked.kind = "MNM";
  checked.findings = lint.Run(bytes);
  checked.contents = Entries(lint.Entries());
  return checked;
}

}  // namespace cli
