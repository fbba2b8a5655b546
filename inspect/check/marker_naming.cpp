#include "inspect/check/marker_naming.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr std::size_t kMostListed = 3;

// The markers that are written under one name.
struct Namesakes {
  std::string name;
  std::size_t count = 0;
  std::string markers{};  // the first of them

  void Add(const std::string& marker) {
    ++count;
    if (count > kMostListed + 1) return;
    if (count > 1) markers += ", ";
    markers += count > kMostListed ? "..." : marker;
  }

  std::string Describe() const {
    return FormatInt(static_cast<std::int64_t>(count)) + " markers are written as " + name + ": " +
           markers;
  }
};

}  // namespace

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

bool MarkerNaming::KeepsAny(const TRCDocument& document) const {
  return std::any_of(
      document.markers().begin(), document.markers().end(),
      [this](const TRCMarker& marker) { return NameFor(marker.Name()).has_value(); });
}

std::vector<std::string> MarkerNaming::DescribeClashes(const TRCDocument& document) const {
  std::vector<Namesakes> all;
  std::unordered_map<std::string, std::size_t> places;
  for (const TRCMarker& marker : document.markers()) {
    const std::optional<std::string> name = NameFor(marker.Name());
    if (!name) continue;
    const auto [place, is_new] = places.emplace(*name, all.size());
    if (is_new) all.push_back({*name});
    all[place->second].Add(marker.Name());
  }
  std::vector<std::string> texts;
  for (const Namesakes& namesakes : all) {
    if (namesakes.count > 1) texts.push_back(namesakes.Describe());
  }
  return texts;
}

}  // namespace orvane
