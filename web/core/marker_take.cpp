#include "web/core/marker_take.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "inspect/check/trc_check.h"
#include "inspect/summary/subject_measure.h"
#include "inspect/summary/trc_summary.h"
#include "web/core/take_reading.h"
#include "web/core/track_room.h"

namespace web {
namespace {

using orvane::TRCDocument;
using orvane::TRCMarker;

std::size_t FrameCountOf(const TRCDocument& document) {
  std::size_t frames = 0;
  for (const TRCMarker& marker : document.markers()) {
    frames = std::max(frames, marker.SampleCount());
  }
  return frames;
}

void AddGaps(std::size_t object, const std::vector<TRCMarker::Gap>& gaps, Contents& contents) {
  for (const TRCMarker::Gap& gap : gaps) contents.gaps.push_back({object, gap.begin, gap.end});
}

// From the sample `begin` on there are none.
void AddEnd(std::size_t object, std::size_t begin, Contents& contents) {
  const bool is_in_gap = !contents.gaps.empty() && contents.gaps.back().object == object &&
                         contents.gaps.back().end == begin;
  if (is_in_gap) {
    contents.gaps.back().end = contents.frames;
  } else {
    contents.gaps.push_back({object, begin, contents.frames});
  }
}

}  // namespace

MarkerTake::MarkerTake(const std::string& path) : Take(path) {
  const auto check = [this](const std::string& name, orvane::FileSource& source) {
    return CheckTrc(name, source, document_);
  };
  const auto why_empty = [this] {
    return std::string(document_.MarkerCount() == 0 ? "The file holds no markers" : "");
  };
  SetChecked(ReadChecked(path, check, why_empty));
}

Header MarkerTake::GetHeader() const {
  Header header;
  header.first_frame = document_.FirstFrame();
  orvane::FileSource source = OpenFile(Path());
  header.rate_text = RateTextsOfTrc(source).data;
  header.rate = orvane::ParseFrameRate(header.rate_text);
  header.rate_taken = document_.DataRate();
  header.length_unit = static_cast<std::uint32_t>(document_.Units());
  return header;
}

Contents MarkerTake::GetContents() const {
  const orvane::TrcSummary summary = SummarizeTrc(document_);
  Contents contents;
  contents.frames = summary.frames;
  contents.objects.reserve(document_.MarkerCount());
  contents.parents.assign(document_.MarkerCount(), -1);
  contents.held.reserve(document_.MarkerCount());
  for (const TRCMarker& marker : document_.markers()) {
    const std::size_t object = contents.objects.size();
    const orvane::TrcMarkerSummary& told = summary.markers[object];
    contents.objects.push_back(marker.Name());
    contents.held.push_back(told.present);
    AddGaps(object, told.gaps, contents);
    if (marker.SampleCount() < summary.frames) AddEnd(object, marker.SampleCount(), contents);
  }
  return contents;
}

Tracks MarkerTake::MakeTracks() const {
  const std::size_t markers = document_.MarkerCount();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  orvane::Bounds bounds{{kInfinity, kInfinity, kInfinity}, {-kInfinity, -kInfinity, -kInfinity}};
  std::size_t held = 0;
  document_.VisitPositions([&held](std::size_t, std::size_t, const double*) { ++held; });
  Tracks tracks;
  tracks.positions = MakeTrackRoom(FrameCountOf(document_), markers, held);
  document_.VisitPositions([&](std::size_t marker, std::size_t frame, const double* position) {
    float* const kept = tracks.positions.data() + kAxes * (frame * markers + marker);
    for (std::size_t axis = 0; axis < kAxes; ++axis) {
      kept[axis] = static_cast<float>(position[axis]);
      bounds.least[axis] = std::min(bounds.least[axis], position[axis]);
      bounds.most[axis] = std::max(bounds.most[axis], position[axis]);
    }
  });
  if (bounds.least[0] <= bounds.most[0]) tracks.bounds = bounds;
  const auto subject = orvane::MeasureSubject(document_);
  tracks.stands_along_z = subject && SeemsToStandAlongZ(*subject);
  return tracks;
}

std::vector<double> MarkerTake::MakeCurve(std::size_t object, CurveOf /*what*/) const {
  const TRCMarker& marker = document_.markers()[object];
  std::vector<double> curve(kAxes * FrameCountOf(document_),
                            std::numeric_limits<double>::quiet_NaN());
  for (std::size_t frame = 0; frame < marker.SampleCount(); ++frame) {
    const double* const position = marker.PositionAt(frame);
    if (position == nullptr) continue;
    std::copy(position, position + kAxes,
              curve.begin() + static_cast<std::ptrdiff_t>(kAxes * frame));
  }
  return curve;
}

}  // namespace web
