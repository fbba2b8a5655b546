#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

// Which marker of a capture set-up plays the role of which standard marker: a list of entries, in
// the order in which they were added, that files are read into and written from. Whoever fills it
// owns it. Nothing is validated: any texts may be paired, and any of them several times. What
// cannot be read or written is told in what is returned; else nothing fails but for want of memory.
// Threads may look names up in one together, and each may change its own.
namespace orvane {

class MarkerNameMap {
 public:
  MarkerNameMap() = default;
  // Not copied: entries share texts with it.
  MarkerNameMap(const MarkerNameMap&) = delete;
  MarkerNameMap& operator=(const MarkerNameMap&) = delete;

  std::size_t Count() const { return entries_.size(); }

  struct Pair {
    std::string_view standard_name;
    std::string_view trc_name;
    std::uint32_t node;  // 0 for none
  };

  // The entry of that place; its names are there until an entry is added or removed.
  // REQUIRES: `index` is below Count().
  [[nodiscard]] Pair At(std::size_t index) const;

  // Appends an entry. `node` is the handle of the scene's node that it was picked from, 0 for none.
  void Add(std::string_view standard_name, std::string_view trc_name, std::uint32_t node);

  // Removes the last entry and returns its node; returns 0 when there is no entry.
  std::uint32_t RemoveLast();

  void Clear();

  // Appends an entry without a node for every line of the file `path` (UTF-8), as
  // formats/mnm/mapping_lines.h reads it. Returns false when the file cannot be read; the entries
  // are then those from before.
  // Intended: what was there stays in front, so the entries of an earlier file go first.
  [[nodiscard]] bool Load(const std::string& path);

  // Writes the entries to the file `path` (UTF-8), one a line: standard name, tab, marker name,
  // tab. Returns false when the file cannot be opened.
  [[nodiscard]] bool Save(const std::string& path) const;

  // Replaces the marker name `name` by the standard name of the first entry that has it, in
  // constant time. Returns false, leaving `name` alone, when there is none. Case counts.
  [[nodiscard]] bool Lookup(std::string& name) const;

 private:
  // Texts by number. Files may repeat an entry with every byte, so each text is kept once.
  using TextNumber = std::uint32_t;

  struct Entry {
    TextNumber standard_name;
    TextNumber trc_name;
    std::uint32_t node;
  };

  TextNumber NumberOf(std::string_view text);
  void AddNumbered(const Entry& entry);

  std::deque<Entry> entries_;
  std::deque<std::string> texts_;
  std::unordered_map<std::string_view, TextNumber> numbers_;   // views into texts_
  std::unordered_map<TextNumber, std::size_t> first_entries_;  // by marker name
};

}  // namespace orvane
