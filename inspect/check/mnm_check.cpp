#include "inspect/check/mnm_check.h"

#include <algorithm>
#include <map>
#include <unordered_set>

#include "formats/mnm/mapping_lines.h"
#include "formats/trc/document.h"
#include "inspect/check/content_kind.h"
#include "inspect/check/mnm_entries.h"
#include "inspect/check/mnm_rules.h"
#include "inspect/check/similar_words.h"
#include "inspect/check/text_flaw.h"
#include "inspect/mapping/name_suggestion.h"

namespace orvane {
namespace {

using mnm::MappingEntries;
using mnm::MappingEntry;

CheckedFile NewReport(const std::string& file, const MappingEntries& entries) {
  return {file, "MNM", CountOf(entries.InForce().size(), "marker") + " mapped", {}};
}

class MarkerObserver final : public TRCReadObserver {
 public:
  // `markers` must outlive the observer.
  explicit MarkerObserver(std::vector<TrcMarkerName>& markers) : markers_(markers) {}

  void OnOddity(TRCOddity /*oddity*/, TRCPlace /*place*/, std::string_view /*text*/) override {}
  void OnMarker(TRCPlace place, std::string_view name) override {
    markers_.push_back({std::string(name), place});
  }
  bool WatchesFrames() const override { return false; }

 private:
  std::vector<TrcMarkerName>& markers_;
};

// An empty file is told as one without entries.
void NameWhatItIs(std::string_view bytes, FindingList& findings) {
  if (const auto kind = FindOtherKind(bytes, ContentKind::kMnm)) {
    return NameKindAlone(*kind, mnm::Rule("mnm-other-kind"), "a mapping",
                         "No marker has its entry; \"orvane map create\" makes a mapping.",
                         findings);
  }
  const auto flaw = FindTextFlaw(bytes);
  if (flaw == TextFlaw::kUtf16) {
    NameFlawAlone(*flaw, mnm::Rule("mnm-encoding"),
                  "No marker has its entry: those of a capture are dropped.", findings);
  } else if (flaw == TextFlaw::kCarriageReturns) {
    NameFlawAlone(*flaw, mnm::Rule("mnm-line-ends"),
                  "Up to an LF only the first two words are read.", findings);
  }
}

// The markers of a capture that get one name.
class Namesakes {
 public:
  void Add(const TrcMarkerName& marker) {
    ++count_;
    if (count_ == 2) second_ = marker.place;
    if (count_ > kMostNamed + 1) return;
    if (count_ > 1) names_ += ", ";
    names_ += count_ > kMostNamed ? "..." : marker.name;
  }

  // That they are written as `name`, when there are several.
  void Tell(std::string_view name, FindingList& findings) const {
    if (count_ < 2) return;
    findings.Add(mnm::Rule("mnm-name-shared"), second_, [this, name] {
      return FindingWords{Quote(name) + " for " + CountOf(count_, "marker") + ": " + names_,
                          "a name for each of them",
                          "Who reads the converted file cannot tell them apart."};
    });
  }

 private:
  static constexpr std::size_t kMostNamed = 3;

  std::size_t count_ = 0;
  TRCPlace second_;
  std::string names_;  // of the first of them
};

// Whether no entry is there for any marker, for a reason that is told.
bool IsNoMapping(const FindingList& findings) {
  const auto& totals = findings.Totals();
  return totals.count(mnm::Rule("mnm-other-kind").code) > 0 ||
         totals.count(mnm::Rule("mnm-encoding").code) > 0;
}

// What would have entries for the markers `names` of a mapping that names `mapped`; empty for
// nothing that is known.
std::string WhatWouldFit(const std::vector<std::string>& mapped,
                         const std::vector<std::string>& names) {
  for (const auto& [how, flag] : {std::pair(NameMatching::kCase, "--names case"),
                                  std::pair(NameMatching::kSubject, "--names subject")}) {
    const NameMatch match = MatchNames(mapped, names, how);
    if (match.taken.empty() || !match.ambiguous.empty()) continue;
    return flag + (" takes " + CountOf(match.taken.size(), "name")) + " for those of the mapping";
  }
  if (SuggestByNames(names).sure.empty()) return "";
  return "\"orvane map suggest\" makes a mapping of what their names say";
}

// What a mapping and the markers of a capture are to each other.
class MappingComparison {
 public:
  MappingComparison(const std::string& mapping, const MappingEntries& entries,
                    const MappedCapture& capture)
      : mapping_(mapping), entries_(entries), markers_(capture.markers), match_(capture.match) {
    for (const TrcMarkerName& marker : markers_) names_.insert(NameInMapping(marker));
  }

  void CheckEntries(FindingList& findings) const {
    for (const MappingEntry& entry : entries_.InForce()) {
      if (!IsUsed(entry)) AddUnused(entry, findings);
    }
  }

  void CheckMarkers(FindingList& findings) const {
    const bool fits_nothing = std::none_of(markers_.begin(), markers_.end(),
                                           [this](const auto& marker) { return IsMapped(marker); });
    if (fits_nothing && !markers_.empty()) AddFitsNothing(findings);
    std::map<std::string_view, Namesakes> namesakes;
    for (const TrcMarkerName& marker : markers_) {
      const MappingEntry* const entry = entries_.Find(NameInMapping(marker));
      if (entry == nullptr) {
        AddUnmapped(marker, findings);
      } else {
        namesakes[entry->standard_name].Add(marker);
      }
    }
    for (const auto& [name, markers] : namesakes) markers.Tell(name, findings);
  }

 private:
  bool IsUsed(const MappingEntry& entry) const { return names_.count(entry.trc_name) > 0; }
  bool IsMapped(const TrcMarkerName& marker) const {
    return entries_.Find(NameInMapping(marker)) != nullptr;
  }
  const std::string& NameInMapping(const TrcMarkerName& marker) const {
    return match_.NameInMapping(marker.name);
  }

  void AddUnused(const MappingEntry& entry, FindingList& findings) const {
    findings.Add(mnm::Rule("mnm-entry-unused"), entry, [&] {
      return FindingWords{Quote(entry.trc_name), ExpectedFor(entry),
                          "The capture has no such marker: the line changes nothing."};
    });
  }

  void AddFitsNothing(FindingList& findings) const {
    findings.Add(mnm::Rule("mnm-fits-nothing"), markers_.front().place, [this] {
      const std::string markers = markers_.size() == 1
                                      ? "the file's only marker"
                                      : "any of the file's " + CountOf(markers_.size(), "marker");
      const std::string help = WhatWouldFit(NamesInMapping(), NamesOfMarkers());
      return FindingWords{"no entry for " + markers, "entries for its markers in " + mapping_,
                          "Every marker is dropped" + (help.empty() ? "." : "; " + help + "."),
                          "Every marker would be dropped, and nothing is written; " +
                              (help.empty() ? "" : help + ", and ") +
                              "--allow empty writes it all the same."};
    });
  }

  std::vector<std::string> NamesInMapping() const {
    std::vector<std::string> names;
    for (const MappingEntry& entry : entries_.InForce()) names.emplace_back(entry.trc_name);
    return names;
  }

  std::vector<std::string> NamesOfMarkers() const {
    std::vector<std::string> names;
    for (const TrcMarkerName& marker : markers_) names.push_back(marker.name);
    return names;
  }

  void AddUnmapped(const TrcMarkerName& marker, FindingList& findings) const {
    const bool cannot = CannotBeMapped(marker.name);
    findings.Add(cannot ? mnm::Rule("mnm-marker-unmappable") : mnm::Rule("mnm-marker-unmapped"),
                 marker.place, [&] {
                   return FindingWords{Quote(marker.name),
                                       cannot ? "a name of one word, which a mapping can name"
                                              : ExpectedFor(marker),
                                       "The marker is dropped."};
                 });
  }

  std::string ExpectedFor(const MappingEntry& entry) const {
    const auto meant =
        std::find_if(markers_.begin(), markers_.end(), [this, &entry](const TrcMarkerName& marker) {
          return !IsMapped(marker) && LooksLike(entry.trc_name, marker.name);
        });
    return meant == markers_.end() ? "a marker of the capture" : Quote(meant->name);
  }

  std::string ExpectedFor(const TrcMarkerName& marker) const {
    const auto& entries = entries_.InForce();
    const auto meant =
        std::find_if(entries.begin(), entries.end(), [this, &marker](const MappingEntry& entry) {
          return !IsUsed(entry) && LooksLike(marker.name, entry.trc_name);
        });
    if (meant == entries.end()) return "an entry for it in " + mapping_;
    return Quote(meant->trc_name) + ", as in " + mapping_;
  }

  const std::string& mapping_;
  const MappingEntries& entries_;
  const std::vector<TrcMarkerName>& markers_;
  const NameMatch& match_;
  std::unordered_set<std::string_view> names_;  // of the markers, in the mapping
};

}  // namespace

CheckedFile CheckMapping(const std::string& file, std::string_view bytes) {
  FindingList findings;
  const MappingEntries entries(bytes, findings);
  NameWhatItIs(bytes, findings);
  CheckedFile checked = NewReport(file, entries);
  checked.findings = std::move(findings);
  return checked;
}

std::string ListTrcMarkers(std::string_view header, std::vector<TrcMarkerName>& markers) {
  TRCDocument document;
  MarkerObserver observer(markers);
  return document.ReadBytes(header, false, &observer);
}

std::vector<CheckedFile> CheckMapping(const std::string& file, std::string_view bytes,
                                      const MappedCapture& capture) {
  FindingList findings;
  const MappingEntries entries(bytes, findings);
  const MappingComparison comparison(file, entries, capture);
  comparison.CheckEntries(findings);
  NameWhatItIs(bytes, findings);

  CheckedFile mapping = NewReport(file, entries);
  mapping.findings = std::move(findings);
  CheckedFile captured{capture.file, "TRC", CountOf(capture.markers.size(), "marker"), {}};
  if (!IsNoMapping(mapping.findings)) comparison.CheckMarkers(captured.findings);
  return {std::move(mapping), std::move(captured)};
}

}  // namespace orvane
