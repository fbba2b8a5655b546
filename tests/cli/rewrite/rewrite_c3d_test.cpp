#include "formats/c3d/writer.h"
#include "formats/units/units.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/replaced_text.h"
#include "tests/support/trc_text.h"

namespace {

using test::CodesIn;
using test::ProgramResult;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

using Flags = std::vector<std::string>;

TrcText Take() {
  TrcText text;
  text.markers = {"LFHD", "RFHD"};
  text.units = "cm";
  text.first_frame = 11;
  text.frames = {{"1\t2\t3.5", ""}, {"4\t5\t6", "7\t8\t9"}};
  return text;
}

class RewriteC3dTest : public test::OrvaneTest {
 protected:
  RewriteC3dTest() { Write("take.trc", Take().Text()); }

  ProgramResult Rewrite(const Flags& flags = {}) const {
    Flags arguments = {"rewrite", "take.trc", "-o", "take.c3d", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  ProgramResult RewriteOf(const TrcText& text, const Flags& flags = {}) const {
    Write("take.trc", text.Text());
    return Rewrite(flags);
  }

  // What the library writes of the markers.
  std::string Written(const orvane::C3dOptions& options) const {
    orvane::TRCDocument document;
    EXPECT_EQ(document.ReadBytes(Read("take.trc"), false), "");
    std::string bytes;
    PrintC3d(PlanC3d(document, options), [&bytes](std::string_view piece) { bytes += piece; });
    return bytes;
  }
};

TEST_F(RewriteC3dTest, MakesWhatTheLibraryWrites) {
  const ProgramResult result = Rewrite({"--quiet"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(Read("take.c3d"), Written({{{60, "60"}}, orvane::kAxisY}));
}

TEST_F(RewriteC3dTest, SaysTheRateAsTheTextDoes) {
  TrcText text = Take();
  text.data_rate = text.camera_rate = "59.94";
  const ProgramResult result = RewriteOf(text);
  EXPECT_EQ(Read("take.c3d"), Written({{{59.94, "59.94"}}, orvane::kAxisY}));
  EXPECT_THAT(result.error,
              HasSubstr("note: The frame rate 59.94 has more digits than single precision holds. "
                        "It is rounded; the parameter ORVANE:RATE of the new file says all of it. "
                        "[rewrite-rate-rounded]\n"));
}

// Nothing is turned: the file says what it is.
TEST_F(RewriteC3dTest, SaysWhichAxisIsUp) {
  EXPECT_EQ(Rewrite({"--up", "z"}).status, 0);
  EXPECT_EQ(Read("take.c3d"), Written({{{60, "60"}}, orvane::kAxisZ}));
  EXPECT_THAT(Read("take.c3d"), HasSubstr("+Z"));
}

struct Loss {
  TrcText markers;
  Flags flags;
  std::string told;
};

TEST_F(RewriteC3dTest, TellsWhatAC3dFileDoesNotHold) {
  TrcText precise = Take();
  precise.frames[1] = {"4\t1000.03\t6", "0.1\t8\t9"};
  TrcText of_camera = Take();
  of_camera.camera_rate = "120";
  const std::string long_name(300, 'a');
  TrcText early = Take();
  early.time = "2.27";
  TrcText in_time = Take();
  in_time.time = "0.167";
  const std::vector<Loss> losses = {
      {precise,
       {},
       "note: A coordinate has more digits than single precision holds: \"LFHD\". It is rounded to "
       "single precision, as all are: by 0.00029 mm in frame 12, and nowhere by more. "
       "[rewrite-coordinate-rounded]\n"},
      {of_camera,
       {},
       "note: The file says a camera rate of 120, too. The new file holds its frame rate alone. "
       "[rewrite-rate-lost]\n"},
      {of_camera,
       {"--rate", "30"},
       "note: The file says a camera rate of 120 and an original rate of 60, too. The new file"},
      {early,
       {},
       "warning: The first frame has the time 2.270 s, which goes by no frame number. The new file "
       "holds no times: other programs count them by its frame numbers and its rate. "
       "[rewrite-time-lost]\n"},
      {Take(),
       {"--start-frame", "-3"},
       "note: The first frame has the number -3. The frames of the new file are numbered from 1. "
       "[rewrite-start-frame-lost]\n"},
      {Take(),
       {"--start-frame", "70000"},
       "note: The last frame has the number 70001, and the header of the new file counts to 65535. "
       "Its parameters tell the frames, which some programs do not read. "
       "[rewrite-frames-uncounted]\n"},
      {Take(),
       {"--rename", "LFHD=Fu\xc3\x9f"},
       "note: A name has blanks at its end, or characters beyond ASCII: \"Fu\xc3\x9f\". It "
       "stands in the new file as it is; other programs may show it otherwise. "
       "[rewrite-name-encoding]\n"},
      {Take(),
       {"--rename", "LFHD=" + long_name},
       ". Of 300 bytes the first 255 are kept. [rewrite-name-changed]\n"}};
  for (const Loss& loss : losses) {
    const ProgramResult result = RewriteOf(loss.markers, loss.flags);
    EXPECT_EQ(result.status, 0) << loss.told;
    EXPECT_THAT(result.error, HasSubstr(loss.told));
  }
  const std::string told = RewriteOf(in_time).error;
  EXPECT_THAT(told, Not(HasSubstr("[rewrite-time-lost]"))) << "frame 11 at 60 frames per second";
}

TEST_F(RewriteC3dTest, TellsTheNumbersThatTheFramesGet) {
  EXPECT_THAT(RewriteOf(Take(), {"--start-frame", "-3"}).output,
              HasSubstr("  Frames    1 to 2 at "));
}

TEST_F(RewriteC3dTest, RefusesWhatNoC3dFileHolds) {
  TrcText infinite = Take();
  infinite.frames[1][1] = "7\t1e39\t9";
  const ProgramResult result = RewriteOf(infinite);
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(
      result.error,
      HasSubstr("orvane: take.trc: its marker \"RFHD\" has a coordinate in frame 12 that is "
                "too large or none, which a C3D file cannot hold\n"));
  EXPECT_FALSE(Exists("take.c3d"));
  TrcText still = Take();
  still.data_rate = "0";
  EXPECT_THAT(RewriteOf(still).error,
              HasSubstr("it has no frame rate above 0 that a C3D file can hold\n"));
  TrcText many = Take();
  many.markers.clear();
  for (std::size_t marker = 0; marker < 600; ++marker) {
    many.markers.push_back(std::to_string(marker) + std::string(marker % 110 == 0 ? 252 : 0, 'm'));
  }
  many.frames = {TrcText::Frame(600, "1\t2\t3")};
  EXPECT_THAT(RewriteOf(many).error,
              HasSubstr("the names of its markers are too long for a C3D file: they would take "));
}

TEST_F(RewriteC3dTest, HasNoDecimals) {
  const ProgramResult result = Rewrite({"--decimals", "2"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, HasSubstr("orvane: --decimals: is for files of text\n"));
}

}  // namespace
