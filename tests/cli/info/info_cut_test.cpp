#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/replaced_text.h"

// What some frames of a file are, cut out of it, held against the same frames of the whole.

namespace {

using nlohmann::json;
using test::ProgramResult;
using testing::HasSubstr;
using testing::Not;

using Flags = std::vector<std::string>;

constexpr int kFirst = 228;
constexpr int kFrames = 4;

// The last line is told apart by its end, and the third frame of the marker "b" is missing.
constexpr char kMarkers[] =
    "PathFileType\t4\t(X/Y/Z)\ta.trc\nDataRate\tCameraRate\n60\t60\t4\t2\tmm\t60\t228\t4\n"
    "Frame#\tTime\ta\t\t\tb\t\t\t\n\t\tX1\tY1\tZ1\tX2\tY2\tZ2\n\n"
    "228\t0.000\t1.50\t-2\t3e-3\t4\t5\t6\n229\t0.017\t0.1\t0.2\t0.30000000000000004\t7\t8\t9\n"
    "230\t0.033\t10\t11\t12\t\t\t\n231\t0.050\t13\t14\t15\t16\t17\t18";

// The segments hold unlike many frames.
constexpr char kMotion[] =
    "[Header]\nFileType htr\nDataType HTRS\nFileVersion 1\nNumSegments 2\nNumFrames 4\n"
    "DataFrameRate 60\nEulerRotationOrder ZYX\nCalibrationUnits mm\nRotationUnits Degrees\n"
    "GlobalAxisofGravity Y\nBoneLengthAxis Y\nScaleFactor 1.0\n[SegmentNames&Hierarchy]\n"
    "a\tGLOBAL\nb\ta\n[BasePosition]\na\t0\t0\t0\t0\t0\t0\t10\nb\t0\t10\t0\t0\t0\t0\t5\n"
    "[a]\n# Fr\n228\t1.50\t-2\t3e-3\t10\t20\t30\t1\n229\t4\t5\t6\t1\t2\t3\t1\n"
    "230\t0.1\t0.2\t0.30000000000000004\t4\t5\t6\t1\n231\t7\t8\t9\t7\t8\t9\t1.25\n"
    "[b]\n228\t0\t0\t0\t1\t0\t0\t1\n229\t0\t0\t0\t2\t0\t0\t1\n230\t0\t0\t0\t3\t0\t0\t1\n"
    "231\t0\t0\t0\t4\t0\t0\t0.5\n[EndOfFile]";

// `text` with other line ends: the lines take them in turns.
std::string WithLineEnds(const std::string& text, const std::vector<std::string>& ends) {
  std::string changed;
  std::size_t line = 0;
  for (const char character : text) {
    changed += character == '\n' ? ends[line++ % ends.size()] : std::string(1, character);
  }
  return changed;
}

class InfoCutTest : public test::OrvaneTest {
 protected:
  // Files of every kind of line end that the readers know, with and without one at their ends.
  InfoCutTest() {
    const std::vector<std::vector<std::string>> all_ends = {
        {"\n"}, {"\r\n"}, {"\r\r\n"}, {"\n", "\r\n", "\r\r\n"}};
    for (const std::string last : {"", "\n", "\r\n", "\r", "\n\n"}) {
      for (const auto& ends : all_ends) {
        Add(".trc", WithLineEnds(kMarkers, ends) + last);
        Add(".htr", WithLineEnds(kMotion, ends) + last);
      }
    }
  }

  void Add(const std::string& extension, const std::string& bytes) {
    files_.push_back("take" + std::to_string(files_.size()) + extension);
    Write(files_.back(), bytes);
  }

  ProgramResult Info(const Flags& flags) const {
    Flags arguments = {"info"};
    arguments.insert(arguments.end(), files_.begin(), files_.end());
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  json Frames(const Flags& cut = {}) const {
    Flags flags = {"--json", "--frames", "--no-report"};
    flags.insert(flags.end(), cut.begin(), cut.end());
    const ProgramResult result = Info(flags);
    EXPECT_EQ(result.status, 0) << result.error;
    return json::parse(result.output)["files"];
  }

  std::vector<std::string> files_;
};

// The text of every number is compared.
json NumbersOf(const json& file, int begin, int count) {
  json numbers = json::array();
  for (const char* const parts : {"markers", "segments"}) {
    for (const json& part : file.value(parts, json::array())) {
      const json& frames = part["frames"];
      EXPECT_GE(frames.size(), static_cast<std::size_t>(begin + count));
      numbers.push_back(part["name"]);
      numbers.push_back(json(frames.begin() + begin, frames.begin() + begin + count));
    }
  }
  return numbers;
}

std::size_t FramesIn(const json& file) {
  return file.value(file.contains("markers") ? "markers" : "segments", json())[0]["frames"].size();
}

int FirstFrameOf(const json& file) {
  return file.contains("motion") ? file["motion"]["first_frame"].get<int>()
                                 : file["first_frame"].get<int>();
}

TEST_F(InfoCutTest, HasTheNumbersOfTheWholeInEveryRange) {
  const json whole = Frames();
  ASSERT_EQ(whole.size(), files_.size());
  for (int first = 0; first < kFrames; ++first) {
    for (int count = 1; first + count <= kFrames; ++count) {
      const int from = kFirst + first;
      const std::string range = std::to_string(from) + ":" + std::to_string(from + count - 1);
      const json cut = Frames({"--cut", range});
      for (std::size_t file = 0; file < files_.size(); ++file) {
        EXPECT_EQ(NumbersOf(cut[file], 0, count).dump(),
                  NumbersOf(whole[file], first, count).dump())
            << files_[file] << ' ' << range;
        EXPECT_EQ(FramesIn(cut[file]), static_cast<std::size_t>(count));
        EXPECT_EQ(cut[file]["frames_announced"], count);
        EXPECT_EQ(FirstFrameOf(cut[file]), from);
      }
    }
  }
}

TEST_F(InfoCutTest, OfAFileThatIsRefusedSaysTheSame) {
  Write("mac.trc", WithLineEnds(kMarkers, {"\r"}));
  Write("mac.htr", WithLineEnds(kMotion, {"\r"}));
  for (const std::string file : {"mac.trc", "mac.htr"}) {
    const ProgramResult whole = Orvane({"info", file});
    const ProgramResult cut = Orvane({"info", file, "--cut", "228:229"});
    EXPECT_EQ(whole.status, 1);
    EXPECT_EQ(cut.status, 1);
    EXPECT_EQ(cut.error, whole.error);
  }
}

TEST_F(InfoCutTest, TellsOfFramesThatAreNotThere) {
  for (const std::string file : {"take0.trc", "take1.htr"}) {
    const std::string part =
        "orvane: " + file +
        ": warning: --cut asks for 3 frames, and the file lacks 2 of them. Frame 231 is "
        "taken. [cut-range-partly]\n";
    const ProgramResult partly = Orvane({"info", file, "--cut", "231:233"});
    EXPECT_EQ(partly.status, 0);
    EXPECT_THAT(partly.error, HasSubstr(part));
    EXPECT_THAT(partly.output, HasSubstr("numbered 231\n"));
    const std::string none =
        "orvane: " + file + ": --cut asks for the frames 1 to 4, and the file has 228 to 231";
    const std::string advice = "\n  --cut 228:231 takes all of it.\n";
    for (const Flags& more : {Flags{}, Flags{"--no-report"}, Flags{"--report", "found.json"}}) {
      Flags flags = {"info", file, "--cut", "1:4"};
      flags.insert(flags.end(), more.begin(), more.end());
      const ProgramResult result = Orvane(flags);
      EXPECT_EQ(result.status, 1);
      const bool is_found = more != Flags{"--no-report"};
      EXPECT_THAT(result.error,
                  testing::EndsWith(none + (is_found ? " [cut-range-outside]" : "") + advice));
      EXPECT_THAT(result.error, Not(HasSubstr("Nothing is made of the file.")));
      EXPECT_EQ(result.output, "");
    }
    EXPECT_THAT(ReadText("found.json"), HasSubstr("\"cut-range-outside\""));
    std::filesystem::remove(folder_.File("found.json"));
  }
}

TEST_F(InfoCutTest, BeginsAndEndsWhereTheFileDoesWhenOneNumberIsLeftOut) {
  const std::vector<std::pair<std::string, std::string>> cuts = {{"230:", "numbered 230 to 231\n"},
                                                                 {":229", "numbered 228 to 229\n"},
                                                                 {":500", "numbered 228 to 231\n"},
                                                                 {"5:", "numbered 228 to 231\n"}};
  for (const std::string file : {"take0.trc", "take1.htr"}) {
    for (const auto& [range, numbers] : cuts) {
      const ProgramResult result = Orvane({"info", file, "--cut", range});
      EXPECT_THAT(result.output, HasSubstr(numbers)) << range;
      const bool lacks_some = range == ":500" || range == "5:";
      EXPECT_EQ(result.error.find("[cut-range-partly]") != std::string::npos, lacks_some) << range;
    }
    EXPECT_THAT(Orvane({"info", file, "--cut", ":500"}).error,
                HasSubstr("--cut asks for 273 frames, and the file lacks 269 of them. The frames "
                          "228 to 231 are taken."));
    EXPECT_THAT(
        Orvane({"info", file, "--cut", "300:"}).error,
        HasSubstr("--cut asks for the frames 300 to the last, and the file has 228 to 231"));
    EXPECT_THAT(Orvane({"info", file, "--cut", ":3"}).error,
                HasSubstr("--cut asks for the frames up to 3, and the file has 228 to 231"));
  }
  for (const std::string wrong : {":", "5", "x:", ":x", ""}) {
    const ProgramResult result = Orvane({"info", "take0.trc", "--cut", wrong});
    EXPECT_EQ(result.status, 2) << wrong;
  }
  EXPECT_THAT(Orvane({"info", "take0.trc", "--cut", ":"}).error,
              HasSubstr("--cut: two frame numbers, FROM:TO, or one of them, FROM: or :TO, are "
                        "expected, not :\n"));
}

TEST_F(InfoCutTest, ShowsManyByTheNumbersOfEach) {
  Write("late.trc", test::Replaced(kMarkers, "\t60\t228\t", "\t60\t300\t"));
  const ProgramResult result = Orvane({"info", "take0.trc", "late.trc", "--cut", "230:300"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("\ntake0.trc  TRC   2 markers       2 "));
  EXPECT_THAT(result.output, HasSubstr("\nlate.trc   TRC   2 markers       1 "));
  EXPECT_EQ(Orvane({"info", "take1.htr", "--cut", "230:231", "--hierarchy"}).status, 2);
}

}  // namespace
