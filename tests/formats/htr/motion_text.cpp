#include "tests/formats/htr/motion_text.h"

#include <stdexcept>

namespace orvane::test_text {
namespace {

const Lines kTwoBones = {
    "# two bones",
    "[Header]",
    "FileType htr",
    "DataType HTRS",
    "FileVersion 1",
    "NumSegments 2",
    "NumFrames 2",
    "DataFrameRate 60",
    "EulerRotationOrder ZYX",
    "CalibrationUnits mm",
    "RotationUnits Degrees",
    "GlobalAxisofGravity Y",
    "BoneLengthAxis Y",
    "ScaleFactor 1.00",
    "[SegmentNames&Hierarchy]",
    "Hips\tGLOBAL",
    "Spine\tHips",
    "[BasePosition]",
    "Hips\t0.000000\t950.000000\t0.000000\t0.000000\t90.000000\t0.000000\t120.000000",
    "Spine\t0.000000\t120.000000\t0.000000\t0.000000\t0.000000\t0.000000\t400.000000",
    "[Hips]",
    "1\t1.000000\t2.000000\t3.000000\t10.000000\t20.000000\t30.000000\t1.000000",
    "2\t4.000000\t5.000000\t6.000000\t0.000000\t0.000000\t0.000000\t0.500000",
    "[Spine]",
    "1\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t45.000000\t1.000000",
    "2\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t-45.000000\t1.000000",
    "[EndOfFile]",
};

}  // namespace

std::string Join(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::string TwoBones() { return Join(kTwoBones); }

std::string TwoBonesWith(const std::string& keyword, const std::string& replacement) {
  Lines lines = kTwoBones;
  for (std::string& line : lines) {
    if (line.rfind(keyword, 0) != 0) continue;
    line = replacement;
    return Join(lines);
  }
  throw std::invalid_argument("no line starts with " + keyword);
}

}  // namespace orvane::test_text
