#pragma once

#include <string>

#include "formats/bvh/writer.h"
#include "formats/htr/document.h"
#include "formats/units/units.h"

// Small skeletons, for the tests of their files.
namespace test {

inline orvane::HtrSegment* AddSegment(orvane::HtrDocument& document, const std::string& name,
                                      orvane::HtrSegment* parent) {
  orvane::HtrSegment* segment = document.AddSegment(orvane::HtrSegment(name));
  segment->SetIsRoot(parent == nullptr);
  if (parent != nullptr) segment->SetParent(parent);
  return segment;
}

// Angles in degrees.
inline void AddFrame(orvane::HtrSegment& segment, const orvane::Vector3& translation,
                     const orvane::Vector3& angles = {}, double scale = 1.0) {
  constexpr double kFactor = orvane::kRadiansPerDegree;
  segment.AddFrame(
      translation,
      orvane::Vector3(angles.x() * kFactor, angles.y() * kFactor, angles.z() * kFactor), scale);
}

inline std::string TextOf(const orvane::BvhPlan& plan) {
  std::string text;
  orvane::PrintBvh(plan, [&text](std::string_view piece) { text += piece; });
  return text;
}

inline std::string TextOf(const orvane::HtrDocument& document,
                          const orvane::BvhOptions& options = {}) {
  return TextOf(orvane::PlanBvh(document, options));
}

// What stands behind the line "Frame Time".
inline std::string MotionOf(const orvane::HtrDocument& document,
                            const orvane::BvhOptions& options = {}) {
  const std::string text = TextOf(document, options);
  return text.substr(text.find('\n', text.find("Frame Time: ")) + 1);
}

// A trunk that bends, of two bones and two frames, 60 a second.
class BentTrunk {
 public:
  BentTrunk() {
    hips_ = AddSegment(document_, "Hips", nullptr);
    hips_->SetBaseTranslation(0, 950, 0);
    hips_->SetBoneLength(120);
    spine_ = AddSegment(document_, "Spine", hips_);
    spine_->SetBaseTranslation(0, 120, 0);
    spine_->SetBoneLength(400);
    AddFrame(*hips_, {0, 0, 0});
    AddFrame(*hips_, {0, 10, 0}, {0, 90, 0});
    AddFrame(*spine_, {0, 0, 0});
    AddFrame(*spine_, {0, 0, 0}, {0, 0, -30});
  }

  orvane::HtrDocument& document() { return document_; }
  orvane::HtrSegment& hips() { return *hips_; }
  orvane::HtrSegment& spine() { return *spine_; }

 private:
  orvane::HtrDocument document_;
  orvane::HtrSegment* hips_;
  orvane::HtrSegment* spine_;
};

}  // namespace test
