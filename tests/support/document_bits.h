#pragma once

#include <cstdint>
#include <sstream>
#include <string>

#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "tests/support/bits.h"

// Documents as texts, which are the same when everything in the documents is, to the last bit of
// each number.
namespace test {

class DocumentBits {
 public:
  static std::string Of(const orvane::HtrDocument& document) {
    DocumentBits bits;
    bits.text_ << document.GetCalibrationUnits() << ' ' << document.GetRotationUnits() << ' '
               << document.GetGlobalAxisofGravity() << ' ' << document.GetDataFrameRate() << ' '
               << document.GetNumFrames() << ' ' << document.GetStartFrame() << '\n';
    bits.Add(document.GetScaleFactor());
    for (const orvane::HtrSegment& segment : document.segments()) bits.Add(segment);
    return bits.text_.str();
  }

  static std::string Of(const orvane::TRCDocument& document) {
    DocumentBits bits;
    bits.text_ << document.Units() << ' ' << document.DataRate() << ' ' << document.CameraRate()
               << ' ' << document.NumFrames() << ' ' << document.FirstFrame() << '\n';
    for (const orvane::TRCMarker& marker : document.markers()) bits.Add(marker);
    return bits.text_.str();
  }

 private:
  void Add(double number) { text_ << std::hex << BitCast<std::uint64_t>(number) << ' '; }

  template <typename Three>
  void AddThree(const Three& three) {
    for (unsigned index = 0; index < 3; ++index) Add(three[index]);
  }

  void Add(const orvane::HtrSegment& segment) {
    text_ << '\n' << segment.GetName() << (segment.GetIsRoot() ? " root" : "");
    if (segment.GetParent() != nullptr) text_ << " of " << segment.GetParent()->GetName();
    for (int index = 0; index < segment.GetNumChildren(); ++index) {
      text_ << " + " << segment.GetChild(index)->GetName();
    }
    text_ << '\n';
    AddThree(segment.GetBaseTranslation());
    AddThree(segment.GetBaseRotation());
    Add(segment.GetBoneLength());
    for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
      text_ << '\n' << segment.GetFrameRotation(frame).order().code() << ' ';
      AddThree(segment.GetFrameTranslation(frame));
      AddThree(segment.GetFrameRotation(frame));
      Add(segment.GetFrameScale(frame));
    }
  }

  void Add(const orvane::TRCMarker& marker) {
    text_ << '\n' << marker.Name() << (marker.IsEnabled() ? "" : " disabled") << '\n';
    for (std::size_t frame = 0; frame < marker.SampleCount(); ++frame) {
      double x = 0;
      double y = 0;
      double z = 0;
      if (!marker.GetSample(frame, x, y, z)) {
        text_ << "gap ";
        continue;
      }
      Add(x);
      Add(y);
      Add(z);
    }
  }

  std::ostringstream text_;
};

template <typename Document>
std::string BitsOf(const Document& document) {
  return DocumentBits::Of(document);
}

}  // namespace test
