#include "formats/edit/renaming.h"

#include <string_view>
#include <unordered_set>
#include <vector>

#include "formats/htr/sections.h"

namespace orvane {
namespace {

// Why these names cannot be given; those behind `taken` are the ones that come about.
std::string WhyNot(const std::vector<std::string>& old, const std::vector<std::string>& others,
                   const char* (*why_no_name)(std::string_view)) {
  std::unordered_set<std::string_view> taken;
  for (std::size_t index = 0; index < others.size(); ++index) {
    const std::string& name = others[index];
    const char* const why = name == old[index] ? nullptr : why_no_name(name);
    if (why != nullptr) return "\"" + name + "\", for \"" + old[index] + "\", " + why;
    if (!taken.insert(name).second) return "\"" + name + "\" would be there twice";
  }
  return {};
}

std::string NameIn(const std::map<std::string, std::string>& names, const std::string& name) {
  const auto other = names.find(name);
  return other == names.end() ? name : other->second;
}

}  // namespace

const char* WhyNoSegmentName(std::string_view name) {
  if (name.empty()) return "a segment needs a name";
  if (name.find_first_of(std::string_view(" \t\r\n\0#]", 7)) != std::string_view::npos) {
    return "holds a blank, a tab, a line end, # or ]";
  }
  const bool is_special = name == kGlobalParent || SectionOf(name) != HtrSection::kMotion;
  return is_special || name.front() == '[' ? "means something else in an HTR file" : nullptr;
}

const char* WhyNoMarkerName(std::string_view name) {
  if (name.empty()) return "a marker needs a name";
  if (name.find_first_of(std::string_view("\t\r\n\0", 4)) != std::string_view::npos) {
    return "holds a tab or a line end";
  }
  return name.starts_with("Unnamed") ? "is that of no marker, as it begins with Unnamed" : nullptr;
}

std::string Rename(HtrDocument& document, const std::map<std::string, std::string>& names) {
  const std::vector<std::string> old = document.GetSegmentNames();
  std::vector<std::string> others;
  others.reserve(old.size());
  for (const std::string& name : old) others.push_back(NameIn(names, name));
  std::string why = WhyNot(old, others, WhyNoSegmentName);
  for (std::size_t index = 0; why.empty() && index < others.size(); ++index) {
    document.segments()[index].SetName(others[index]);
  }
  return why;
}

std::string Rename(TRCDocument& document, const std::map<std::string, std::string>& names) {
  std::vector<std::string> old;
  std::vector<std::string> others;
  old.reserve(document.MarkerCount());
  others.reserve(document.MarkerCount());
  for (const TRCMarker& marker : document.markers()) {
    old.push_back(marker.Name());
    others.push_back(NameIn(names, marker.Name()));
  }
  std::string why = WhyNot(old, others, WhyNoMarkerName);
  for (std::size_t index = 0; why.empty() && index < others.size(); ++index) {
    document.MarkerAt(index)->SetName(others[index]);
  }
  return why;
}

}  // namespace orvane
