#include "formats/mnm/marker_name_map.h"

#include <fstream>
#include <optional>

#include "formats/mnm/mapping_lines.h"
#include "formats/text/files.h"

namespace orvane {

MarkerNameMap::Pair MarkerNameMap::At(std::size_t index) const {
  const Entry& entry = entries_[index];
  return {texts_[entry.standard_name], texts_[entry.trc_name], entry.node};
}

void MarkerNameMap::Add(std::string_view standard_name, std::string_view trc_name,
                        std::uint32_t node) {
  const TextNumber standard = NumberOf(standard_name);
  AddNumbered({standard, NumberOf(trc_name), node});
}

std::uint32_t MarkerNameMap::RemoveLast() {
  if (entries_.empty()) return 0;
  const Entry last = entries_.back();
  entries_.pop_back();
  const auto first = first_entries_.find(last.trc_name);
  if (first != first_entries_.end() && first->second == entries_.size()) {
    first_entries_.erase(first);
  }
  return last.node;
}

void MarkerNameMap::Clear() {
  entries_.clear();
  first_entries_.clear();
  numbers_.clear();
  texts_.clear();
}

bool MarkerNameMap::Load(const std::string& path) {
  const std::optional<std::string> bytes = ReadFileBytes(path);
  if (!bytes) return false;
  MappingLineReader reader(*bytes);
  MappingLine line;
  Entry entry{NumberOf(""), NumberOf(""), 0};
  while (reader.Next(line)) {
    if (!line.given_standard_name.empty()) {
      entry = {NumberOf(line.standard_name), NumberOf(line.trc_name), 0};
    }
    AddNumbered(entry);
  }
  return true;
}

bool MarkerNameMap::Save(const std::string& path) const {
  std::ofstream file = CreateFileForText(path);
  if (!file.is_open()) return false;
  for (const Entry& entry : entries_) {
    file << texts_[entry.standard_name] << '\t' << texts_[entry.trc_name] << "\t\n";
  }
  return true;
}

bool MarkerNameMap::Lookup(std::string& name) const {
  const auto number = numbers_.find(name);
  if (number == numbers_.end()) return false;
  const auto first = first_entries_.find(number->second);
  if (first == first_entries_.end()) return false;
  name = texts_[entries_[first->second].standard_name];
  return true;
}

MarkerNameMap::TextNumber MarkerNameMap::NumberOf(std::string_view text) {
  const auto known = numbers_.find(text);
  if (known != numbers_.end()) return known->second;
  const auto number = static_cast<TextNumber>(texts_.size());
  texts_.emplace_back(text);
  numbers_.emplace(texts_.back(), number);
  return number;
}

void MarkerNameMap::AddNumbered(const Entry& entry) {
  first_entries_.try_emplace(entry.trc_name, entries_.size());
  entries_.push_back(entry);
}

}  // namespace orvane
