#include "cli/import/marker_gaps.h"

#include <limits>

namespace cli {

MarkerSamples SamplesOf(const orvane::TRCDocument& document) {
  MarkerSamples samples;
  samples.first_frame = document.FirstFrame();
  for (const orvane::TRCMarker& marker : document.markers()) {
    samples.held = static_cast<std::int64_t>(marker.SampleCount());
  }
  samples.gaps = document.Gaps();
  return samples;
}

std::vector<orvane::FrameSpan> KeyedGaps(const MarkerSamples& samples, std::size_t marker,
                                         const orvane::FrameSpan& keyed) {
  std::vector<orvane::FrameSpan> gaps;
  const auto add = [&](std::int64_t begin, std::int64_t last_frame) {
    const orvane::FrameSpan gap = Overlap({samples.first_frame + begin, last_frame}, keyed);
    if (gap.Count() == 0) return;
    const bool goes_on = !gaps.empty() && gaps.back().last + 1 == gap.first;
    if (goes_on) {
      gaps.back().last = gap.last;
    } else {
      gaps.push_back(gap);
    }
  };
  for (const orvane::TRCMarker::Gap& gap : samples.gaps[marker]) {
    add(static_cast<std::int64_t>(gap.begin),
        samples.first_frame + static_cast<std::int64_t>(gap.end) - 1);
  }
  add(samples.held, std::numeric_limits<std::int64_t>::max());
  return gaps;
}

SampleCounts CountSamples(const MarkerSamples& samples, const orvane::FrameSpan& keyed) {
  SampleCounts counts;
  for (std::size_t marker = 0; marker < samples.gaps.size(); ++marker) {
    counts.all += keyed.Count();
    for (const orvane::FrameSpan& gap : KeyedGaps(samples, marker, keyed))
      counts.missing += gap.Count();
  }
  return counts;
}

}  // namespace cli
