#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Motion files as text, for tests: a header that every reader takes, and whatever segments a test
// wants.
namespace test {

struct HtrText {
  struct Segment {
    std::string name;
    std::string parent = "GLOBAL";
    std::string base = "0 0 0 0 0 0 0";  // Tx Ty Tz Rx Ry Rz BoneLength
    std::vector<std::string> frames{};   // Tx Ty Tz Rx Ry Rz, offsets from the base
  };

  std::vector<Segment> segments;
  int frame_rate = 30;
  int first_frame = 1;
  std::string units = "mm";
  std::string scale_factor = "1.0";
  int frame_count = -1;  // as the header says; -1: as many as the first segment has

  std::string Text() const {
    return Header() + Hierarchy() + BasePosition() + Motion() + "[EndOfFile]\n";
  }

  std::string Header() const {
    const std::size_t held = segments.empty() ? 0 : segments.front().frames.size();
    const std::string announced =
        std::to_string(frame_count < 0 ? static_cast<int>(held) : frame_count);
    return "[Header]\nFileType htr\nDataType HTRS\nFileVersion 1\nNumSegments " +
           std::to_string(segments.size()) + "\nNumFrames " + announced + "\nDataFrameRate " +
           std::to_string(frame_rate) + "\nEulerRotationOrder ZYX\nCalibrationUnits " + units +
           "\nRotationUnits Degrees\nGlobalAxisofGravity Y\nBoneLengthAxis Y\nScaleFactor " +
           scale_factor + "\n";
  }

  std::string Hierarchy() const {
    std::string text = "[SegmentNames&Hierarchy]\n";
    for (const Segment& segment : segments) text += segment.name + " " + segment.parent + "\n";
    return text;
  }

  std::string BasePosition() const {
    std::string text = "[BasePosition]\n";
    for (const Segment& segment : segments) text += segment.name + " " + segment.base + "\n";
    return text;
  }

  std::string Motion() const {
    std::string text;
    for (const Segment& segment : segments) {
      text += "[" + segment.name + "]\n";
      std::int64_t number = first_frame;
      for (const std::string& frame : segment.frames) {
        text += std::to_string(number++) + " " + frame + " 1\n";
      }
    }
    return text;
  }
};

}  // namespace test
