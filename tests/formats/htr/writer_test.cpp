#include "formats/htr/writer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "formats/htr/reader.h"

namespace orvane {
namespace {

std::string Printed(const HtrDocument& document) {
  std::string bytes;
  PrintHtr(document, [&bytes](std::string_view piece) { bytes += piece; });
  return bytes;
}

// The lines of a file, each of which has to end with CR LF.
std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end = bytes.find("\r\n"); end != std::string::npos;
       end = bytes.find("\r\n", start)) {
    lines.push_back(bytes.substr(start, end - start));
    start = end + 2;
  }
  EXPECT_EQ(start, bytes.size()) << "the last line has no end";
  return lines;
}

// The line at an index from 1, as editors count.
std::string LineOf(const HtrDocument& document, std::size_t number) {
  const std::vector<std::string> lines = LinesOf(Printed(document));
  return number <= lines.size() ? lines[number - 1] : "no such line";
}

HtrSegment Hips() {
  HtrSegment hips("Hips");
  hips.SetIsRoot(true);
  hips.SetBaseTranslation(0, 950, 0);
  hips.SetBoneLength(120);
  return hips;
}

// The lines before the first section of motion are these many for one segment.
constexpr std::size_t kSegmentLine = 18;
constexpr std::size_t kBaseLine = 21;
constexpr std::size_t kFirstFrameLine = 24;

TEST(HtrWriter, WritesAWholeFileByteForByte) {
  HtrDocument document;
  HtrSegment hips = Hips();
  hips.AddFrame(Vector3(0, 950, 0), Vector3(0, 0, 0), 1);
  hips.AddFrame(Vector3(-1.5, 951.25, 1.0 / 3.0), Vector3(std::acos(0.0), 0, -0.0), 0.5);
  HtrSegment* root = document.AddSegment(hips);
  HtrSegment spine("Spine");
  spine.SetBaseTranslation(0, 120, 0);
  spine.SetBaseRotation(0, 0, -std::acos(0.0));
  spine.SetBoneLength(400.5);
  spine.AddFrame(Vector3(), Vector3(), 1);
  document.AddSegment(spine)->SetParent(root);
  document.SetNumFrames(2);
  EXPECT_EQ(Printed(document),
            "# Orvane HTR (source:OrvaneFileLib v1.10)\r\n"
            "[Header]\r\n"
            "# KeyWord<space>Value<CR>\r\n"
            "FileType htr\r\n"
            "DataType HTRS\r\n"
            "FileVersion 1\r\n"
            "NumSegments 2\r\n"
            "NumFrames 2\r\n"
            "DataFrameRate 60\r\n"
            "EulerRotationOrder ZYX\r\n"
            "CalibrationUnits mm\r\n"
            "RotationUnits Degrees\r\n"
            "GlobalAxisofGravity Y\r\n"
            "BoneLengthAxis Y\r\n"
            "ScaleFactor 1.00\r\n"
            "[SegmentNames&Hierarchy]\r\n"
            "# ObjectName<tab>ParentObjectName<CR>\r\n"
            "Hips\tGLOBAL\r\n"
            "Spine\tHips\r\n"
            "[BasePosition]\r\n"
            "# ObjectName<tab>Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneLength<CR>\r\n"
            "Hips\t0.000000\t950.000000\t0.000000\t0.000000\t0.000000\t0.000000\t120.000000\r\n"
            "Spine\t0.000000\t120.000000\t0.000000\t0.000000\t0.000000\t-90.000000\t400.500000\r\n"
            "[Hips]\r\n"
            "# Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneScaleFactor<CR>\r\n"
            "1\t0.000000\t950.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "2\t-1.500000\t951.250000\t0.333333\t90.000000\t0.000000\t-0.000000\t0.500000\r\n"
            "[Spine]\r\n"
            "# Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneScaleFactor<CR>\r\n"
            "1\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "2\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "[EndOfFile]\r\n");
}

TEST(HtrWriter, WritesNoMoreFramesThanTheHeaderAnnounces) {
  HtrDocument document;
  HtrSegment hips = Hips();
  for (int frame = 0; frame < 3; ++frame) hips.AddFrame(Vector3(frame, 0, 0), Vector3(), 1);
  document.AddSegment(hips);
  document.SetNumFrames(1);
  EXPECT_EQ(LineOf(document, 8), "NumFrames 1");
  EXPECT_EQ(LinesOf(Printed(document)).size(), kFirstFrameLine + 1);
}

TEST(HtrWriter, WritesOneFrameAtRestForADocumentWithoutFrames) {
  HtrDocument document;
  HtrSegment hips = Hips();
  hips.AddFrame(Vector3(1, 2, 3), Vector3(1, 2, 3), 4);
  hips.SetScaleReferenceLength(2);
  document.AddSegment(hips);
  document.SetNormalizeBoneScale(true);
  document.SetStartFrame(7);
  const std::vector<std::string> lines = LinesOf(Printed(document));
  ASSERT_EQ(lines.size(), kFirstFrameLine + 1);
  EXPECT_EQ(lines[7], "NumFrames 1");
  EXPECT_EQ(lines[kFirstFrameLine - 1],
            "1\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000");
}

TEST(HtrWriter, WritesADocumentWithoutFramesSoThatItReadsAsOneFrame) {
  HtrDocument document;
  document.AddSegment(Hips());
  HtrDocument again;
  ASSERT_EQ(ReadHtrBytes(again, Printed(document), true), "");
  EXPECT_EQ(again.GetNumFrames(), 1u);
  EXPECT_EQ(again.FindSegment("Hips")->GetNumFrames(), 1u);
}

struct HeaderCase {
  std::size_t line;
  const char* text;
  void (*change)(HtrDocument& document);
};

TEST(HtrWriter, WritesTheHeaderOfTheDocument) {
  const std::vector<HeaderCase> cases = {
      {9, "DataFrameRate 120", [](HtrDocument& d) { d.SetDataFrameRate(120); }},
      {9, "DataFrameRate -30", [](HtrDocument& d) { d.SetDataFrameRate(-30); }},
      {11, "CalibrationUnits cm", [](HtrDocument& d) { d.SetCalibrationUnits(1); }},
      {11, "CalibrationUnits m", [](HtrDocument& d) { d.SetCalibrationUnits(2); }},
      {11, "CalibrationUnits in", [](HtrDocument& d) { d.SetCalibrationUnits(3); }},
      {11, "CalibrationUnits ft", [](HtrDocument& d) { d.SetCalibrationUnits(4); }},
      {11, "CalibrationUnits yd", [](HtrDocument& d) { d.SetCalibrationUnits(5); }},
      {11, "CalibrationUnits ", [](HtrDocument& d) { d.SetCalibrationUnits(6); }},
      {12, "RotationUnits Radians", [](HtrDocument& d) { d.SetRotationUnits(1); }},
      {12, "RotationUnits ", [](HtrDocument& d) { d.SetRotationUnits(2); }},
      {13, "GlobalAxisofGravity Y", [](HtrDocument& d) { d.SetGlobalAxisofGravity(0); }},
      {13, "GlobalAxisofGravity Y", [](HtrDocument& d) { d.SetGlobalAxisofGravity(2); }},
      {14, "BoneLengthAxis X", [](HtrDocument& d) { d.SetBoneLengthAxis(0); }},
      {14, "BoneLengthAxis Z", [](HtrDocument& d) { d.SetBoneLengthAxis(2); }},
      {14, "BoneLengthAxis ", [](HtrDocument& d) { d.SetBoneLengthAxis(3); }},
      {15, "ScaleFactor 2.50", [](HtrDocument& d) { d.SetScaleFactor(2.5); }},
      {15, "ScaleFactor 0.01", [](HtrDocument& d) { d.SetScaleFactor(0.009); }},
      {15, "ScaleFactor 0.12", [](HtrDocument& d) { d.SetScaleFactor(0.125); }},
      {15, "ScaleFactor -0.00", [](HtrDocument& d) { d.SetScaleFactor(-0.001); }},
  };
  for (const HeaderCase& c : cases) {
    HtrDocument document;
    document.AddSegment(Hips());
    c.change(document);
    EXPECT_EQ(LineOf(document, c.line), c.text);
    EXPECT_EQ(LineOf(document, 1), "# Orvane HTR (source:OrvaneFileLib v1.10)");
  }
}

TEST(HtrWriter, WritesTheCountOfSegments) {
  HtrDocument document;
  for (int index = 0; index < 12; ++index) {
    document.AddSegment(HtrSegment("s" + std::to_string(index)));
  }
  EXPECT_EQ(LineOf(document, 7), "NumSegments 12");
}

TEST(HtrWriter, NamesTheParentOfASegmentWhateverItsFlagSays) {
  HtrDocument document;
  HtrSegment* hips = document.AddSegment(HtrSegment("Hips"));
  HtrSegment* spine = document.AddSegment(HtrSegment("Spine"));
  spine->SetIsRoot(true);
  spine->SetParent(hips);
  EXPECT_EQ(LineOf(document, kSegmentLine), "Hips\tGLOBAL");
  EXPECT_EQ(LineOf(document, kSegmentLine + 1), "Spine\tHips");
}

TEST(HtrWriter, WritesParentsThatFormACircle) {
  HtrDocument document;
  HtrSegment* a = document.AddSegment(HtrSegment("a"));
  HtrSegment* b = document.AddSegment(HtrSegment("b"));
  a->SetParent(b);
  b->SetParent(a);
  EXPECT_EQ(LineOf(document, kSegmentLine), "a\tb");
  EXPECT_EQ(LineOf(document, kSegmentLine + 1), "b\ta");
}

struct AngleCase {
  std::uint32_t units;
  std::string_view base;
  std::string_view frame;
};

TEST(HtrWriter, WritesAnglesInTheRotationUnit) {
  const std::vector<AngleCase> cases = {
      {0, "57.295780\t-114.591559\t171.887339", "28.647890\t0.000573\t-360.000000"},
      {1, "1.000000\t-2.000000\t3.000000", "0.500000\t0.000010\t-6.283185"},
      {2, "1.000000\t-2.000000\t3.000000", "0.500000\t0.000010\t-6.283185"},
  };
  for (const AngleCase& c : cases) {
    HtrDocument document;
    HtrSegment hips("Hips");
    hips.SetBaseRotation(1, -2, 3);
    hips.AddFrame(Vector3(), Vector3(0.5, 1e-5, -6.283185307179586), 1);
    document.AddSegment(hips);
    document.SetNumFrames(1);
    document.SetRotationUnits(c.units);
    const std::string zeros = "0.000000\t0.000000\t0.000000\t";
    EXPECT_EQ(LineOf(document, kBaseLine), "Hips\t" + zeros + std::string(c.base) + "\t0.000000");
    EXPECT_EQ(LineOf(document, kFirstFrameLine),
              "1\t" + zeros + std::string(c.frame) + "\t1.000000");
  }
}

// A frame's values are offsets; adding the base to them would count it twice when they are read.
TEST(HtrWriter, WritesFramesWithoutTheirBase) {
  HtrDocument document;
  HtrSegment hips = Hips();
  hips.SetBaseRotation(1, 1, 1);
  hips.AddFrame(Vector3(1, 2, 3), Vector3(), 1);
  document.AddSegment(hips);
  document.SetNumFrames(1);
  EXPECT_EQ(LineOf(document, kFirstFrameLine),
            "1\t1.000000\t2.000000\t3.000000\t0.000000\t0.000000\t0.000000\t1.000000");
}

struct ScaleCase {
  bool write;
  bool normalize;
  std::string_view stored;
  std::string_view past_the_end;
};

TEST(HtrWriter, WritesTheScaleThatTheFlagsAskFor) {
  const std::vector<ScaleCase> cases = {
      {true, false, "5.000000", "1.000000"},
      {true, true, "2.500000", "0.500000"},
      {false, false, "1.000000", "1.000000"},
      {false, true, "1.000000", "1.000000"},
  };
  for (const ScaleCase& c : cases) {
    HtrDocument document;
    HtrSegment hips = Hips();
    hips.SetScaleReferenceLength(2);
    hips.AddFrame(Vector3(), Vector3(), 5);
    document.AddSegment(hips);
    document.SetNumFrames(2);
    document.SetWriteBoneScale(c.write);
    document.SetNormalizeBoneScale(c.normalize);
    const auto scale = [&document](std::size_t frame) {
      const std::string line = LineOf(document, kFirstFrameLine + frame);
      return line.substr(line.rfind('\t') + 1);
    };
    EXPECT_EQ(scale(0), c.stored) << c.write << c.normalize;
    EXPECT_EQ(scale(1), c.past_the_end) << c.write << c.normalize;
  }
}

std::string NumberOfFrame(const HtrDocument& document, std::size_t frame) {
  const std::string line = LineOf(document, kFirstFrameLine + frame);
  return line.substr(0, line.find('\t'));
}

struct StartCase {
  std::int32_t start;
  std::vector<std::string_view> numbers;
};

TEST(HtrWriter, CountsFramesFromTheStartFrame) {
  const std::vector<StartCase> cases = {
      {0, {"0", "1", "2"}},
      {1, {"1", "2", "3"}},
      {-1, {"-1", "0", "1"}},
      {2147483647, {"2147483647", "2147483648", "2147483649"}},
      {std::numeric_limits<std::int32_t>::min(), {"-2147483648", "-2147483647", "-2147483646"}},
  };
  for (const StartCase& c : cases) {
    HtrDocument document;
    document.AddSegment(Hips());
    document.SetNumFrames(3);
    document.SetStartFrame(c.start);
    for (std::size_t frame = 0; frame < c.numbers.size(); ++frame) {
      EXPECT_EQ(NumberOfFrame(document, frame), c.numbers[frame]);
    }
  }
}

struct Enough {};

// What a header merely announces is not held in memory.
TEST(HtrWriter, HandsOverPiecesOfLimitedSizeHoweverManyFramesAreAnnounced) {
  HtrDocument document;
  document.AddSegment(Hips());
  document.SetNumFrames(0xFFFFFFFF);
  std::string bytes;
  const auto take = [&bytes](std::string_view piece) {
    EXPECT_LE(piece.size(), std::size_t{1} << 20);
    bytes += piece;
    if (bytes.size() > (std::size_t{4} << 20)) throw Enough();
  };
  EXPECT_THROW(PrintHtr(document, take), Enough);
  EXPECT_NE(bytes.find("NumFrames 4294967295\r\n"), std::string::npos);
}

TEST(HtrWriter, WritesNamesAndNumbersOfAnyLength) {
  HtrDocument document;
  const double lowest = std::numeric_limits<double>::lowest();
  const std::string name(200'000, 'x');
  HtrSegment segment(name);
  segment.SetBaseTranslation(lowest, lowest, lowest);
  segment.SetBoneLength(lowest);
  for (int frame = 0; frame < 500; ++frame) {
    segment.AddFrame(Vector3(lowest, lowest, lowest), Vector3(1e300, 1e300, 1e300), lowest);
  }
  document.AddSegment(segment);
  document.SetNumFrames(500);
  const std::vector<std::string> lines = LinesOf(Printed(document));
  ASSERT_EQ(lines.size(), kFirstFrameLine + 500);
  EXPECT_EQ(lines[kSegmentLine - 1], name + "\tGLOBAL");
  EXPECT_EQ(lines[kFirstFrameLine - 3], "[" + name + "]");
  for (std::size_t frame = 1; frame < 500; ++frame) {
    const std::string& first = lines[kFirstFrameLine - 1];
    const std::string& line = lines[kFirstFrameLine - 1 + frame];
    ASSERT_EQ(line.substr(line.find('\t')), first.substr(first.find('\t')));
  }
}

TEST(HtrWriter, WritesWhatIsNoNumberAsTheLibraryDoes) {
  HtrDocument document;
  HtrSegment hips("Hips");
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  hips.SetBaseTranslation(kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN());
  document.AddSegment(hips);
  EXPECT_EQ(LineOf(document, kBaseLine),
            "Hips\tinf\t-inf\tnan\t0.000000\t0.000000\t0.000000\t0.000000");
}

}  // namespace
}  // namespace orvane
