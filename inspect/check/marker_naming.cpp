#include "inspect/check/marker_naming.h"

#include "formats/mnm/mapping_lines.h"
#include "formats/text/files.h"
#include "inspect/mapping/mapping_roles.h"

namespace orvane {

bool MarkerNaming::Load(const std::string& path) {
  const std::optional<std::string> bytes = ReadFileBytes(path);
  if (!bytes || !mapping_.Load(path)) return false;
  file_ = path;
  bytes_ = *bytes;
  names_ = MarkersIn(bytes_);
  return true;
}

std::optional<std::string> MarkerNaming::NameFor(const std::string& marker) const {
  std::string name = marker;
  if (!file_.empty() && !mapping_.Lookup(name)) return std::nullopt;
  return name;
}

NameMatch MarkerNaming::Match(std::span<const std::string> markers, NameMatching how) const {
  return MatchNames(names_, markers, how);
}

std::string MarkerNaming::MappingFor(const NameMatch& match) const {
  std::string bytes = bytes_;
  if (!bytes.empty() && !bytes.ends_with('\n')) bytes += '\n';
  for (const auto& [marker, mapped] : match.taken) {
    if (CannotBeMapped(marker)) continue;
    bytes += NameFor(mapped).value_or(mapped) + '\t' + marker + "\t\n";
  }
  return bytes;
}

}  // namespace orvane
