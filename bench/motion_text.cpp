#include "bench/motion_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace bench {
namespace {

constexpr std::size_t kBytesPerLine = 80;

std::string SegmentName(int index) { return "Segment" + std::to_string(index); }

// Of any segment but the first, which is the root.
int ParentOf(int segment, MotionShape shape) {
  switch (shape) {
    case MotionShape::kChain:
      return segment - 1;
    case MotionShape::kFan:
      return 0;
    case MotionShape::kTree:
      break;
  }
  return (segment - 1) / 2;
}

void AppendNumber(std::string& text, double value) {
  std::array<char, 32> digits;
  char* const first = digits.data();
  const auto result =
      std::to_chars(first, first + digits.size(), value, std::chars_format::fixed, 6);
  text.append(first, result.ptr);
}

void AppendHeader(std::string& text, MotionSize size) {
  text += "[Header]\nFileType htr\nDataType HTRS\nFileVersion 1\nNumSegments ";
  text += std::to_string(size.segments);
  text += "\nNumFrames ";
  text += std::to_string(size.frames);
  text +=
      "\nDataFrameRate 120\nEulerRotationOrder ZYX\nCalibrationUnits mm\nRotationUnits Degrees\n"
      "GlobalAxisofGravity Y\nBoneLengthAxis Y\nScaleFactor 1.00\n";
}

void AppendHierarchy(std::string& text, MotionSize size) {
  text += "[SegmentNames&Hierarchy]\n";
  for (int segment = 0; segment < size.segments; ++segment) {
    text += SegmentName(segment) + '\t';
    text += segment == 0 ? "GLOBAL" : SegmentName(ParentOf(segment, size.shape));
    text += '\n';
  }
}

void AppendBasePositions(std::string& text, MotionSize size) {
  text += "[BasePosition]\n";
  for (int segment = 0; segment < size.segments; ++segment) {
    text += SegmentName(segment) + "\t0.000000\t120.000000\t0.000000\t0.000000\t0.000000\t";
    text += "15.000000\t120.000000\n";
  }
}

// Translations of a few hundred millimetres and angles of up to 60 degrees.
void AppendMotion(std::string& text, int segment, MotionSize size) {
  text += '[' + SegmentName(segment) + "]\n";
  for (int frame = 1; frame <= size.frames; ++frame) {
    const double phase = 0.05 * frame + segment;
    text += std::to_string(frame);
    for (int value = 0; value < 6; ++value) {
      text += '\t';
      AppendNumber(text, (value < 3 ? 350.0 : 60.0) * std::sin(phase + value));
    }
    text += "\t1.000000\n";
  }
}

}  // namespace

std::string MakeMotionText(MotionSize size) {
  std::string text;
  text.reserve(static_cast<std::size_t>(size.segments) *
               (static_cast<std::size_t>(size.frames) + 4) * kBytesPerLine);
  AppendHeader(text, size);
  AppendHierarchy(text, size);
  AppendBasePositions(text, size);
  for (int segment = 0; segment < size.segments; ++segment) AppendMotion(text, segment, size);
  text += "[EndOfFile]\n";
  return text;
}

}  // namespace bench
