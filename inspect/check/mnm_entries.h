#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "formats/mnm/mapping_lines.h"
#include "formats/text/watched_line.h"
#include "inspect/check/findings.h"

// The entries of a mapping file that count, and what is odd about its lines. Lines and columns, in
// bytes, count from 1; nothing fails but for want of memory.

namespace orvane::mnm {

struct MappingEntry {
  std::string_view standard_name;
  std::string_view trc_name;
  std::size_t line = 0;
  std::size_t column = 0;  // of the marker's name, or of the standard name where there is no other
};

// Reads the lines of a file and adds to a list of findings. What it hands out are views into the
// bytes, and lives no longer than the object itself.
class MappingEntries {
 public:
  // Both must outlive this object.
  MappingEntries(std::string_view bytes, FindingList& findings);

  // The first entry of every marker, which is the one that counts, in the file's order.
  [[nodiscard]] const std::vector<MappingEntry>& InForce() const { return in_force_; }
  // The one that counts for the marker `trc_name`; null when there is none.
  [[nodiscard]] const MappingEntry* Find(std::string_view trc_name) const;

 private:
  void ReadLine(const MappingLine& line);
  void CheckBytes();
  void AddBlank(const MappingLine& line);
  void AddNameMissing(const MappingLine& line);
  void AddRestIgnored(const MappingLine& line);
  void CheckEncoding(std::string_view name);
  void CheckStandardName(const MappingLine& line);
  void AddEntry(const MappingLine& line);
  void CheckStandardTaken(const MappingEntry& entry, std::size_t column);
  void AddSuperfluous(const MappingEntry& entry, const MappingEntry& first);
  void CheckCount();

  // Of a part of the line.
  [[nodiscard]] FindingPlace PlaceOf(std::string_view text) const {
    return {line_.Number(), line_.ColumnOf(text)};
  }

  FindingList& findings_;
  WatchedLine line_;
  std::string_view last_trc_name_;
  std::size_t lines_ = 0;
  std::vector<MappingEntry> in_force_;
  std::unordered_map<std::string_view, std::size_t> by_trc_name_;       // of in_force_
  std::unordered_map<std::string_view, std::size_t> by_standard_name_;  // the first of in_force_
};

}  // namespace orvane::mnm
