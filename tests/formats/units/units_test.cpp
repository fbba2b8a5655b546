#include "formats/units/units.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace orvane {
namespace {

struct KeywordCase {
  std::string_view word;
  std::uint32_t code;
};

TEST(CalibrationUnits, AreKnownByTheirKeywords) {
  const std::vector<KeywordCase> cases = {
      {"mm", 0}, {"MM", 0}, {"cm", 1}, {"CM", 1}, {"m", 2},  {"M", 2},
      {"in", 3}, {"IN", 3}, {"ft", 4}, {"FT", 4}, {"yd", 5}, {"YD", 5},
  };
  for (const KeywordCase& c : cases) {
    EXPECT_EQ(ParseCalibrationUnits(c.word), c.code) << c.word;
    EXPECT_EQ(FindCalibrationUnits(c.word), c.code) << c.word;
  }
}

TEST(CalibrationUnits, AreMillimetresForAnyOtherWord) {
  for (std::string_view word : {"", "Mm", "Cm", "metres", "In", "km", "mm ", " mm"}) {
    EXPECT_EQ(ParseCalibrationUnits(word), 0u) << word;
    EXPECT_FALSE(FindCalibrationUnits(word).has_value()) << word;
  }
}

TEST(CalibrationUnits, PrintInLowerCase) {
  const std::vector<std::string_view> names = {"mm", "cm", "m", "in", "ft", "yd"};
  for (std::uint32_t code = 0; code < names.size(); ++code) {
    EXPECT_EQ(CalibrationUnitsName(code), names[code]);
  }
  EXPECT_EQ(CalibrationUnitsName(6), "");
  EXPECT_EQ(CalibrationUnitsName(0xFFFFFFFF), "");
}

TEST(RotationUnits, AreKnownByTheirKeywords) {
  const std::vector<KeywordCase> cases = {
      {"Degrees", 0}, {"degrees", 0}, {"DEGREES", 0}, {"Degree", 0}, {"degree", 0}, {"DEGREE", 0},
      {"Radians", 1}, {"radians", 1}, {"RADIANS", 1}, {"Radian", 1}, {"radian", 1},
  };
  for (const KeywordCase& c : cases) {
    EXPECT_EQ(ParseRotationUnits(c.word), c.code) << c.word;
    EXPECT_EQ(FindRotationUnits(c.word), c.code) << c.word;
  }
}

TEST(RotationUnits, AreDegreesForAnyOtherWordUpperCaseRadianIncluded) {
  for (std::string_view word : {"RADIAN", "", "rad", "deg", "DeGrees"}) {
    EXPECT_EQ(ParseRotationUnits(word), 0u) << word;
    EXPECT_FALSE(FindRotationUnits(word).has_value()) << word;
  }
}

TEST(RotationUnits, PrintWithACapital) {
  EXPECT_EQ(RotationUnitsName(0), "Degrees");
  EXPECT_EQ(RotationUnitsName(1), "Radians");
  EXPECT_EQ(RotationUnitsName(2), "");
}

TEST(Axis, IsKnownByItsLetter) {
  const std::vector<KeywordCase> cases = {{"X", 0}, {"x", 0}, {"Y", 1},
                                          {"y", 1}, {"Z", 2}, {"z", 2}};
  for (const KeywordCase& c : cases) {
    EXPECT_EQ(ParseAxis(c.word), c.code) << c.word;
    EXPECT_EQ(FindAxis(c.word), c.code) << c.word;
  }
}

TEST(Axis, IsYForAnyOtherWord) {
  for (std::string_view word : {"", "Q", "XX", "-Y"}) {
    EXPECT_EQ(ParseAxis(word), 1u) << word;
    EXPECT_FALSE(FindAxis(word).has_value()) << word;
  }
}

TEST(Axis, PrintsInUpperCase) {
  EXPECT_EQ(AxisName(0), "X");
  EXPECT_EQ(AxisName(1), "Y");
  EXPECT_EQ(AxisName(2), "Z");
  EXPECT_EQ(AxisName(3), "");
}

struct FactorCase {
  std::uint32_t code;
  double to_mm;
  double from_mm;
};

TEST(LengthFactor, IsTheListedValueToTheLastBit) {
  const std::vector<FactorCase> cases = {
      {0, 1.0, 1.0},
      {1, 10.0, 0.1},
      {2, 1000.0, 0.001},
      {3, 25.4, 0.0393700787},
      {4, 2.1166666666666663, 0.47244094439999995},
      {5, 0.7055555555555555, 1.4173228331999999},
  };
  for (const FactorCase& c : cases) {
    EXPECT_EQ(LengthFactor(c.code, 0), c.to_mm) << c.code;
    EXPECT_EQ(LengthFactor(0, c.code), c.from_mm) << c.code;
  }
}

TEST(LengthFactor, IsTheProductOfBothSides) {
  EXPECT_EQ(LengthFactor(2, 1), 1000.0 * 0.1);
  EXPECT_EQ(LengthFactor(4, 3), 2.1166666666666663 * 0.0393700787);
}

TEST(LengthFactor, IsOneOnTheSideOfAnUnknownCode) {
  EXPECT_EQ(LengthFactor(6, 0), 1.0);
  EXPECT_EQ(LengthFactor(0, 6), 1.0);
  EXPECT_EQ(LengthFactor(6, 1), 0.1);
  EXPECT_EQ(LengthFactor(1, 0xFFFFFFFF), 10.0);
}

TEST(AngleFactors, AreTheDoublesNearestToTheirValues) {
  EXPECT_EQ(kRadiansPerDegree, 0.017453292519943295);
  EXPECT_EQ(kDegreesPerRadian, 57.29577951308232);
}

}  // namespace
}  // namespace orvane
