#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/htr/reader.h"
#include "tests/formats/htr/motion_text.h"

namespace orvane {
namespace {

using test_text::TwoBonesWith;

std::string ReadWith(HtrDocument& document, const std::string& keyword, const std::string& value) {
  return ReadHtrBytes(document, TwoBonesWith(keyword + " ", keyword + " " + value), true);
}

struct CheckedKeyword {
  std::string keyword;
  std::vector<std::string> accepted;
  std::vector<std::string> refused;
  std::string message;
};

TEST(HtrHeader, RefusesWhatItCannotReadWithTheKeywordsMessage) {
  const std::vector<CheckedKeyword> keywords = {
      {"FileType",
       {"HTR", "Htr", "htr"},
       {"hTR", "trc", "htrs", "", "htr2"},
       "The file does not have a compatible \"FileType\" header state"},
      {"DataType",
       {"HTRS", "Htrs", "htrs"},
       {"HTR", "hTRS", "GTRS", ""},
       "The file does not have a compatible \"DataType\" header state"},
      {"FileVersion",
       {"1"},
       {"2", "1.0", "01", "+1", ""},
       "The file does not have a compatible \"FileVersion\" header state"},
      {"EulerRotationOrder",
       {"ZYX"},
       {"zyx", "XYZ", "ZXY", "ZYXs", ""},
       "The file does not have a compatible \"EulerRotationOrder\" header state"},
      {"GlobalAxisofGravity",
       {"Y", "y", "Z", "z", "Q", "XX", ""},
       {"X", "x"},
       "The file does not have a compatible \"GlobalAxisofGravity\" header state"},
      {"BoneLengthAxis",
       {"Y"},
       {"y", "X", "Z", "Q", ""},
       "The file does not have a compatible \"BoneLengthAxis\" header state"},
  };
  for (const CheckedKeyword& k : keywords) {
    HtrDocument document;
    for (const std::string& value : k.accepted) {
      EXPECT_EQ(ReadWith(document, k.keyword, value), "") << k.keyword << " " << value;
    }
    for (const std::string& value : k.refused) {
      EXPECT_EQ(ReadWith(document, k.keyword, value), k.message) << k.keyword << " " << value;
    }
  }
}

TEST(HtrHeader, StopsAtTheFirstValueThatItRefuses) {
  HtrDocument document;
  EXPECT_EQ(ReadWith(document, "EulerRotationOrder", "XYZ"),
            "The file does not have a compatible \"EulerRotationOrder\" header state");
  EXPECT_EQ(document.GetNumFrames(), 2u);
  EXPECT_EQ(document.GetNumSegments(), 0);
}

TEST(HtrHeader, StoresGravityAndRefusesXAllTheSame) {
  HtrDocument document;
  EXPECT_EQ(ReadWith(document, "GlobalAxisofGravity", "z"), "");
  EXPECT_EQ(document.GetGlobalAxisofGravity(), 2u);
  EXPECT_EQ(ReadWith(document, "GlobalAxisofGravity", "Q"), "");
  EXPECT_EQ(document.GetGlobalAxisofGravity(), 1u);
  EXPECT_NE(ReadWith(document, "GlobalAxisofGravity", "x"), "");
  EXPECT_EQ(document.GetGlobalAxisofGravity(), 0u);
}

TEST(HtrHeader, ReadsWholeNumbers) {
  HtrDocument document;
  EXPECT_EQ(ReadWith(document, "DataFrameRate", "29.97"), "");
  EXPECT_EQ(document.GetDataFrameRate(), 29);
  EXPECT_EQ(ReadWith(document, "DataFrameRate", "-5"), "");
  EXPECT_EQ(document.GetDataFrameRate(), -5);
  EXPECT_EQ(ReadWith(document, "NumFrames", "+7"), "");
  EXPECT_EQ(document.GetNumFrames(), 7u);
  EXPECT_EQ(ReadWith(document, "NumFrames", "many"), "");
  EXPECT_EQ(document.GetNumFrames(), 0u);
}

TEST(HtrHeader, TakesNoNegativeFrameCount) {
  HtrDocument document;
  EXPECT_EQ(ReadWith(document, "NumFrames", "-3"), "");
  EXPECT_EQ(document.GetNumFrames(), 0u);
}

TEST(HtrHeader, SaturatesCountsAt32Bits) {
  HtrDocument document;
  EXPECT_EQ(ReadWith(document, "NumFrames", "99999999999999"), "");
  EXPECT_EQ(document.GetNumFrames(), 2147483647u);
}

TEST(HtrHeader, ReadsTheScaleFactor) {
  HtrDocument document;
  for (const auto& [text, value] : std::vector<std::pair<std::string, double>>{
           {"2.5", 2.5}, {"1", 1.0}, {"-0.5e1", -5.0}, {"nan", 0.0}, {"", 0.0}}) {
    EXPECT_EQ(ReadWith(document, "ScaleFactor", text), "");
    EXPECT_EQ(document.GetScaleFactor(), value) << text;
  }
}

TEST(HtrHeader, KeepsTheScaleFactorOfThePreviousFileWhenThereIsNone) {
  HtrDocument document;
  EXPECT_EQ(ReadWith(document, "ScaleFactor", "2.5"), "");
  EXPECT_EQ(ReadHtrBytes(document, TwoBonesWith("ScaleFactor", "# nothing"), true), "");
  EXPECT_EQ(document.GetScaleFactor(), 2.5);
}

TEST(HtrHeader, ReadsUnits) {
  HtrDocument document;
  EXPECT_EQ(ReadWith(document, "CalibrationUnits", "YD"), "");
  EXPECT_EQ(document.GetCalibrationUnits(), 5u);
  EXPECT_EQ(ReadWith(document, "CalibrationUnits", "furlongs"), "");
  EXPECT_EQ(document.GetCalibrationUnits(), 0u);
  EXPECT_EQ(ReadWith(document, "RotationUnits", "radian"), "");
  EXPECT_EQ(document.GetRotationUnits(), 1u);
  EXPECT_EQ(ReadWith(document, "RotationUnits", "RADIAN"), "");
  EXPECT_EQ(document.GetRotationUnits(), 0u);
}

TEST(HtrHeader, TakesTheFirstAndTheLastTokenOfALine) {
  HtrDocument document;
  EXPECT_EQ(ReadWith(document, "DataFrameRate", "= 50 or rather \t 120 \t"), "");
  EXPECT_EQ(document.GetDataFrameRate(), 120);
}

TEST(HtrHeader, IgnoresOtherKeywordsAndTheirCase) {
  HtrDocument document;
  EXPECT_EQ(ReadHtrBytes(document, TwoBonesWith("FileType", "filetype trc"), true), "");
  EXPECT_EQ(ReadHtrBytes(document, TwoBonesWith("FileType", "Author someone"), true), "");
}

TEST(HtrHeader, NeedsNoKeywordAtAll) {
  HtrDocument document;
  EXPECT_EQ(ReadHtrBytes(document, "[Header]\n[EndOfFile]\n", true), "");
  EXPECT_EQ(document.GetDataFrameRate(), 60);
}

}  // namespace
}  // namespace orvane
