#include "formats/edit/document_copies.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <unordered_map>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

std::vector<std::size_t> FirstOf(std::size_t count) {
  std::vector<std::size_t> indices(count);
  std::iota(indices.begin(), indices.end(), std::size_t{0});
  return indices;
}

// A name that none of the others in the making has.
std::string NameInTheMaking(std::size_t index) {
  return FormatInt(static_cast<std::int64_t>(index));
}

void CopyHeader(const HtrDocument& source, HtrDocument& target) {
  target.SetCalibrationUnits(source.GetCalibrationUnits());
  target.SetRotationUnits(source.GetRotationUnits());
  target.SetBoneLengthAxis(source.GetBoneLengthAxis());
  target.SetGlobalAxisofGravity(source.GetGlobalAxisofGravity());
  target.SetDataFrameRate(source.GetDataFrameRate());
  target.SetNumFrames(source.GetNumFrames());
  target.SetStartFrame(source.GetStartFrame());
  target.SetWriteBoneScale(source.GetWriteBoneScale());
  target.SetNormalizeBoneScale(source.GetNormalizeBoneScale());
  target.SetScaleFactor(source.GetScaleFactor());
}

void CopyBase(const HtrSegment& source, HtrSegment& target) {
  const Vector3 translation = source.GetBaseTranslation();
  const EulerRotation rotation = source.GetBaseRotation();
  target.SetIsRoot(source.GetIsRoot());
  target.SetBaseTranslation(translation.x(), translation.y(), translation.z());
  target.SetBaseRotation(rotation[0], rotation[1], rotation[2]);
  target.SetBoneLength(source.GetBoneLength());
  target.SetScaleReferenceLength(source.GetScaleReferenceLength());
}

// Children stand in the order in which they were linked, some of them twice; and one whose parent
// was not found the last time is linked no more.
void LinkAsIn(const HtrDocument& source, const std::vector<std::size_t>& kept,
              HtrDocument& target) {
  std::unordered_map<const HtrSegment*, HtrSegment*> copies;
  for (std::size_t at = 0; at < kept.size(); ++at) {
    copies.emplace(&source.segments()[kept[at]], &target.segments()[at]);
  }
  for (const std::size_t index : kept) {
    const HtrSegment& parent = source.segments()[index];
    for (int child = 0; child < parent.GetNumChildren(); ++child) {
      const auto copy = copies.find(parent.GetChild(child));
      if (copy != copies.end()) copy->second->SetParent(copies.at(&parent));
    }
  }
  for (const auto& [segment, copy] : copies) {
    if (segment->GetParent() == nullptr) copy->SetParent(nullptr);
  }
}

}  // namespace

std::vector<std::size_t> AllOf(const HtrDocument& document) {
  return FirstOf(document.segments().size());
}

std::vector<std::size_t> AllOf(const TRCDocument& document) {
  return FirstOf(document.MarkerCount());
}

// Documents take no name twice, and none with a blank, but those that they have may be changed.
void CopyWithoutFrames(const HtrDocument& source, const std::vector<std::size_t>& kept,
                       HtrDocument& target) {
  CopyHeader(source, target);
  for (const std::size_t index : kept) {
    CopyBase(source.segments()[index], *target.AddSegment(HtrSegment(NameInTheMaking(index))));
  }
  for (std::size_t at = 0; at < kept.size(); ++at) {
    target.segments()[at].SetName(source.segments()[kept[at]].GetName());
  }
  LinkAsIn(source, kept, target);
}

void CopyWithoutFrames(const TRCDocument& source, const std::vector<std::size_t>& kept,
                       TRCDocument& target) {
  target.SetUnits(source.Units());
  target.SetDataRate(source.DataRate());
  target.SetCameraRate(source.CameraRate());
  target.SetNumFrames(source.NumFrames());
  target.SetFirstFrame(source.FirstFrame());
  for (const std::size_t index : kept) target.AddMarker(TRCMarker(NameInTheMaking(index)));
  for (std::size_t at = 0; at < kept.size(); ++at) {
    TRCMarker& copy = *target.MarkerAt(at);
    const TRCMarker& marker = *source.MarkerAt(kept[at]);
    copy.SetName(marker.Name());
    copy.SetEnabled(marker.IsEnabled());
  }
}

void AppendFrames(const HtrSegment& source, std::size_t begin, std::size_t end,
                  HtrSegment& target) {
  end = std::min(end, source.GetNumFrames());
  if (begin >= end) return;
  target.ReserveFrames(target.GetNumFrames() + end - begin);
  for (std::size_t frame = begin; frame < end; ++frame) {
    target.AddFrame(source.GetFrameTranslation(frame), source.GetFrameRotation(frame),
                    source.GetFrameScale(frame));
  }
}

void AppendFrames(const TRCMarker& source, std::size_t begin, std::size_t end, TRCMarker& target) {
  end = std::min(end, source.SampleCount());
  for (std::size_t frame = begin; frame < end; ++frame) {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    if (source.GetSample(frame, x, y, z)) {
      target.AppendPosition(x, y, z);
    } else {
      target.AppendDropout();
    }
  }
}

}  // namespace orvane
