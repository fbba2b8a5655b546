#pragma once

#include <string>
#include <vector>

#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "formats/units/units.h"

// Documents that edits are tried on.
namespace test {

inline orvane::HtrSegment& AddSegment(orvane::HtrDocument& document, const std::string& name,
                                      orvane::HtrSegment* parent) {
  orvane::HtrSegment* const segment = document.AddSegment(orvane::HtrSegment(name));
  segment->SetIsRoot(parent == nullptr);
  if (parent != nullptr) segment->SetParent(parent);
  return *segment;
}

// Hips, Spine and Head in a row and Leg beside them: `frames` frames, numbered from 11, in which
// the hips walk along X and all turn about X by a degree a frame.
inline void FillWalker(orvane::HtrDocument& document, std::size_t frames = 6) {
  document.SetStartFrame(11);
  document.SetNumFrames(static_cast<std::uint32_t>(frames));
  document.SetDataFrameRate(120);
  orvane::HtrSegment& hips = AddSegment(document, "Hips", nullptr);
  hips.SetBaseTranslation(1, 950, 3);
  hips.SetBaseRotation(0.1, 0.2, 0.3);
  orvane::HtrSegment& spine = AddSegment(document, "Spine", &hips);
  spine.SetBaseTranslation(0, 120, 0);
  AddSegment(document, "Leg", &hips);
  AddSegment(document, "Head", &spine).SetBoneLength(200);
  for (orvane::HtrSegment& segment : document.segments()) {
    for (std::size_t frame = 0; frame < frames; ++frame) {
      const auto number = static_cast<double>(frame);
      const double x = &segment == &hips ? 10 * number : 0;
      segment.AddFrame({x, 0, 0.5}, orvane::Vector3{number * orvane::kRadiansPerDegree, 0, 0},
                       1 + number);
    }
  }
}

// Markers A, B and C over six frames from 101; A walks along X, B has gaps in the frames 102, 103
// and 106, C stands still.
inline void FillCloud(orvane::TRCDocument& document) {
  document.SetUnits(static_cast<std::int32_t>(orvane::kMillimeters));
  document.SetFirstFrame(101);
  document.SetDataRate(60);
  document.SetNumFrames(6);
  orvane::TRCMarker a("A");
  orvane::TRCMarker b("B");
  orvane::TRCMarker c("C");
  for (int frame = 0; frame < 6; ++frame) {
    a.AppendPosition(10.0 * frame, 2, 3);
    const bool is_gap = frame == 1 || frame == 2 || frame == 5;
    if (is_gap) b.AppendDropout();
    if (!is_gap) b.AppendPosition(frame, 20, 30);
    c.AppendPosition(7, 8, 9);
  }
  document.AddMarker(a);
  document.AddMarker(b);
  document.AddMarker(c);
}

inline std::vector<std::string> NamesOf(const orvane::TRCDocument& document) {
  std::vector<std::string> names;
  for (const orvane::TRCMarker& marker : document.markers()) names.push_back(marker.Name());
  return names;
}

}  // namespace test
