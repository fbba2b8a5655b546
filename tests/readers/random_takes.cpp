#include "tests/readers/random_takes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

#include "formats/text/numbers.h"
#include "formats/units/units.h"

namespace test {
namespace {

using orvane::FormatInt;

// What a file is made by.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : random_(seed), decimals_(static_cast<int>(Below(15)) + 3) {}

  std::uint64_t Below(std::uint64_t limit) { return random_() % limit; }
  // From -size to size.
  double Number(double size) {
    return size * (static_cast<double>(random_() >> 11U) * 0x1p-52 - 1.0);
  }
  template <std::size_t kCount>
  std::string OneOf(const std::array<const char*, kCount>& words) {
    return words[Below(kCount)];
  }
  // As this file writes it: with so many decimals, or as many as bring back the very number.
  [[nodiscard]] std::string Text(double number) const {
    return decimals_ < kLeastDecimals ? orvane::FormatShortest(number)
                                      : orvane::FormatDouble(number, decimals_);
  }

 private:
  static constexpr int kLeastDecimals = 4;  // a tenth of a millimeter, where meters are written

  std::mt19937_64 random_;
  int decimals_;
};

// How many of each unit a meter is.
constexpr std::array<double, 6> kPerMeter = {1000, 100, 1, 39.37, 3.281, 1.094};

// The words behind each other, each with what is to stand in front of it.
std::string Row(const std::string& first, const std::vector<std::string>& words) {
  std::string row = first;
  for (const std::string& word : words) row += "\t" + word;
  return row + "\n";
}

using Place = std::array<double, 3>;

class MotionMaker {
 public:
  MotionMaker(std::uint64_t seed, Moving moving)
      : dice_(seed),
        moving_(moving),
        segments_(2 + dice_.Below(19)),
        frames_(2 + dice_.Below(11)),
        rate_(dice_.OneOf<6>({"24", "30", "50", "60", "120", "240"})),
        unit_(static_cast<std::uint32_t>(dice_.Below(6))),
        meter_(kPerMeter[unit_]),
        is_in_degrees_(dice_.Below(4) != 0) {}

  RandomMotionFile Make() { return {Header() + Hierarchy() + Base() + Motion(), rate_}; }

 private:
  std::string Header() {
    return "[Header]\nFileType htr\nDataType HTRS\nFileVersion 1\nNumSegments " + Count(segments_) +
           "\nNumFrames " + Count(frames_) + "\nDataFrameRate " + rate_ +
           "\nEulerRotationOrder ZYX\nCalibrationUnits " +
           std::string(orvane::CalibrationUnitsName(unit_)) + "\nRotationUnits " +
           (is_in_degrees_ ? "Degrees" : "Radians") +
           "\nGlobalAxisofGravity Y\nBoneLengthAxis Y\nScaleFactor 1.0\n";
  }

  std::string Hierarchy() {
    std::string text = "[SegmentNames&Hierarchy]\nBone0\tGLOBAL\n";
    for (std::uint64_t segment = 1; segment < segments_; ++segment) {
      const std::uint64_t above = 1 + dice_.Below(std::min<std::uint64_t>(segment, 3));
      text += Row("Bone" + Count(segment), {"Bone" + Count(segment - above)});
    }
    return text;
  }

  std::string Base() {
    std::string text = "[BasePosition]\n";
    for (std::uint64_t segment = 0; segment < segments_; ++segment) {
      const Place offset = Offset();
      const double length = (0.3 + dice_.Number(0.1)) * meter_;
      text += Row("Bone" + Count(segment), Values(offset, length));
    }
    return text;
  }

  // From the segment above, whose long axis is Y.
  Place Offset() {
    Place offset = Within(0.1 * meter_);
    offset[1] += 0.3 * meter_;
    return offset;
  }

  Place Within(double reach) {
    Place place{};
    for (double& number : place) number = dice_.Number(reach);
    return place;
  }

  std::string Motion() {
    std::string text;
    for (std::uint64_t segment = 0; segment < segments_; ++segment) {
      const bool is_moved = segment == 0 || (moving_ == Moving::kMany && dice_.Below(3) == 0);
      const double reach = is_moved ? (segment == 0 ? 2.5 : 0.2) * meter_ : 0.0;
      text += "[Bone" + Count(segment) + "]\n";
      for (std::uint64_t frame = 1; frame <= frames_; ++frame) {
        const Place translation = Within(reach);
        const double scale = 1 + dice_.Number(0.5);
        text += Row(Count(frame), Values(translation, scale));
      }
    }
    return text + "[EndOfFile]\n";
  }

  std::vector<std::string> Values(const Place& place, double last) {
    std::vector<std::string> values;
    values.reserve(7);
    for (const double number : place) values.push_back(dice_.Text(number));
    for (int axis = 0; axis < 3; ++axis) values.push_back(dice_.Text(Angle()));
    values.push_back(dice_.Text(last));
    return values;
  }

  double Angle() {
    const bool is_quarter = dice_.Below(4) == 0;
    const double degrees =
        is_quarter ? 90 * (static_cast<double>(dice_.Below(9)) - 4) : dice_.Number(360);
    return is_in_degrees_ ? degrees : degrees * orvane::kRadiansPerDegree;
  }

  static std::string Count(std::uint64_t count) {
    return FormatInt(static_cast<std::int64_t>(count));
  }

  Dice dice_;
  Moving moving_;
  std::uint64_t segments_;
  std::uint64_t frames_;
  std::string rate_;
  std::uint32_t unit_;
  double meter_;
  bool is_in_degrees_;
};

std::string MarkerNames(std::uint64_t count, Dice& dice) {
  const std::string subject = dice.OneOf<3>({"", "anna:", "Left "});
  std::string names = "Frame#\tTime";
  std::string axes = "\t";
  for (std::uint64_t marker = 1; marker <= count; ++marker) {
    const std::string number = FormatInt(static_cast<std::int64_t>(marker));
    names += "\t" + subject + "M" + number + "\t\t";
    axes += "\tX" + number + "\tY" + number + "\tZ" + number;
  }
  return names + "\n" + axes + "\n\n";
}

}  // namespace

RandomMotionFile MakeRandomMotion(std::uint64_t seed, Moving moving) {
  return MotionMaker(seed, moving).Make();
}

std::string MakeRandomMarkers(std::uint64_t seed) {
  Dice dice(seed);
  const std::uint64_t markers = 1 + dice.Below(12);
  const auto frames = static_cast<std::int64_t>(1 + dice.Below(12));
  const auto first = static_cast<std::int64_t>(dice.Below(100'000));
  const std::string rate = dice.OneOf<5>({"60", "59.94", "120.00", "100", "29.97"});
  const auto unit = static_cast<std::uint32_t>(dice.Below(6));
  const double reach = 3 * kPerMeter[unit];
  std::string text =
      "PathFileType\t4\t(X/Y/Z)\ttake.trc\nDataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\t"
      "OrigDataRate\tOrigDataStartFrame\tOrigNumFrames\n";
  text += Row(rate, {rate, FormatInt(frames), FormatInt(static_cast<std::int64_t>(markers)),
                     std::string(orvane::CalibrationUnitsName(unit)), rate, FormatInt(first),
                     FormatInt(frames)});
  text += MarkerNames(markers, dice);
  for (std::int64_t frame = 0; frame < frames; ++frame) {
    std::vector<std::string> cells = {orvane::FormatDouble(static_cast<double>(frame) / 60)};
    for (std::uint64_t marker = 0; marker < markers; ++marker) {
      const bool is_gap = dice.Below(5) == 0;
      for (int axis = 0; axis < 3; ++axis) {
        const double number = dice.Number(reach);
        cells.push_back(is_gap ? "" : dice.Text(number));
      }
    }
    text += Row(FormatInt(first + frame), cells);
  }
  return text;
}

}  // namespace test
