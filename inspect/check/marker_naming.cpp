#include "inspect/check/marker_naming.h"

namespace orvane {
bool MarkerNaming::Load(const std::string& path) {
  if (!mapping_.Load(path)) return false;
  file_ = path;
  return true;
}

std::optional<std::string> MarkerNaming::NameFor(const std::string& marker) const {
  std::string name = marker;
  if (!file_.empty() && !mapping_.Lookup(name)) return std::nullopt;
  return name;
}

}  // namespace orvane
