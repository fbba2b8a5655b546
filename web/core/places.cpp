#include "web/core/places.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/trc/document.h"
#include "web/core/take_reading.h"

namespace web {
namespace {

using orvane::HtrCell;
using orvane::HtrSection;
using orvane::LinePlace;
using orvane::TRCPlace;

// Ends the reading when all that is wanted is found.
struct AllFound {};

// A part of a line; what stands directly behind it belongs to it too.
struct Span {
  std::size_t line = 0;
  std::size_t column = 0;
  std::size_t size = 0;

  [[nodiscard]] bool Holds(std::size_t other) const {
    return other >= column && other - column <= size;
  }
};

class WantedPlaces {
 public:
  explicit WantedPlaces(const std::vector<LinePlace>& places)
      : places_(places), found_(places.size()) {
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (places[i].line > 0) by_line_.emplace(places[i].line, i);
    }
  }

  [[nodiscard]] bool AreThere() const { return !by_line_.empty(); }
  [[nodiscard]] std::vector<PlaceInTake> TakeFound() { return std::move(found_); }

  // All places in `span` are what `what_is` says, by their column. Spans come in file order.
  template <typename WhatIs>
  void Find(const Span& span, const WhatIs& what_is) {
    if (span.line > by_line_.rbegin()->first) throw AllFound();
    const auto of_line = by_line_.equal_range(span.line);
    for (auto each = of_line.first; each != of_line.second; ++each) {
      const std::size_t column = places_[each->second].column;
      if (span.Holds(column)) found_[each->second] = what_is(column);
    }
  }

 private:
  const std::vector<LinePlace>& places_;
  std::vector<PlaceInTake> found_;
  std::multimap<std::size_t, std::size_t> by_line_;
};

class MarkerPlaces : public orvane::TRCReadObserver {
 public:
  explicit MarkerPlaces(WantedPlaces& wanted) : wanted_(wanted) {}

  void OnOddity(orvane::TRCOddity, TRCPlace, std::string_view) override {}

  void OnMarker(TRCPlace place, std::string_view name) override {
    const std::size_t marker = markers_++;
    wanted_.Find({place.line, place.column, name.size()}, [marker](std::size_t) {
      return PlaceInTake{marker, std::nullopt};
    });
  }

  void OnFrame(TRCPlace, const orvane::TRCRow& row) override {
    const std::size_t frame = frames_++;
    const std::string_view text = row.line.text;
    const std::size_t start = row.line.offset + 1;
    wanted_.Find({row.line.number, start, text.size()}, [this, frame, text, start](std::size_t at) {
      return PlaceInTake{MarkerIn(text.substr(0, at - start)), frame};
    });
  }

 private:
  static constexpr std::size_t kCellsBefore = 2;  // frame and time
  static constexpr std::size_t kCellsOfMarker = 3;

  // Whose value stands behind this beginning of a frame's line.
  [[nodiscard]] std::optional<std::size_t> MarkerIn(std::string_view before) const {
    const auto cell = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\t'));
    if (cell < kCellsBefore) return std::nullopt;
    const std::size_t marker = (cell - kCellsBefore) / kCellsOfMarker;
    return marker < markers_ ? std::optional(marker) : std::nullopt;
  }

  WantedPlaces& wanted_;
  std::size_t markers_ = 0;
  std::size_t frames_ = 0;
};

class MotionPlaces : public orvane::HtrReadObserver {
 public:
  MotionPlaces(const std::vector<std::string>& segments, WantedPlaces& wanted)
      : wanted_(wanted), frames_(segments.size()) {
    for (const std::string& name : segments) index_of_.emplace(name, index_of_.size());
  }

  void OnOddity(orvane::HtrOddity, const HtrCell&, std::string_view) override {}

  void OnSection(HtrSection section, const HtrCell& name) override {
    section_ = section == HtrSection::kMotion ? IndexOf(name) : std::nullopt;
    SetRestOfLine(name, {section_, std::nullopt});
  }

  void OnSegment(const HtrCell& name, const HtrCell& /*parent*/) override {
    SetRestOfLine(name, {IndexOf(name), std::nullopt});
  }

  void OnBasePosition(const HtrCell& name) override {
    SetRestOfLine(name, {IndexOf(name), std::nullopt});
  }

  void OnFrame(const HtrCell& number) override {
    if (section_) SetRestOfLine(number, {section_, frames_[*section_]++});
  }

 private:
  [[nodiscard]] std::optional<std::size_t> IndexOf(const HtrCell& name) const {
    const auto found = index_of_.find(std::string(name.text));
    return found == index_of_.end() ? std::nullopt : std::optional(found->second);
  }

  void SetRestOfLine(const HtrCell& first, const PlaceInTake& place) {
    wanted_.Find({first.line, first.column, std::numeric_limits<std::size_t>::max()},
                 [&place](std::size_t) { return place; });
  }

  WantedPlaces& wanted_;
  std::unordered_map<std::string, std::size_t> index_of_;
  std::vector<std::size_t> frames_;  // that each segment has had
  std::optional<std::size_t> section_;
};

// What ends the reading was told when the take was opened.
void ReadMarkers(orvane::FileSource& source, WantedPlaces& wanted) {
  MarkerPlaces places(wanted);
  orvane::TRCDocument document;
  static_cast<void>(document.ReadFrom(source, false, &places, orvane::TRCSamples::kLeftOut));
}

void ReadMotion(orvane::FileSource& source, const Contents& contents, WantedPlaces& wanted) {
  MotionPlaces places(contents.objects, wanted);
  orvane::HtrDocument document;
  static_cast<void>(ReadHtrFrom(document, source, true, &places));
}

}  // namespace

std::vector<PlaceInTake> FindPlaces(const Take& take, const Contents& contents,
                                    const std::vector<LinePlace>& places) {
  WantedPlaces wanted(places);
  if (!wanted.AreThere()) return wanted.TakeFound();
  orvane::FileSource source = OpenFile(take.Path());
  try {
    take.IsMotion() ? ReadMotion(source, contents, wanted) : ReadMarkers(source, wanted);
  } catch (const AllFound&) {
    return wanted.TakeFound();
  }
  return wanted.TakeFound();
}

}  // namespace web
