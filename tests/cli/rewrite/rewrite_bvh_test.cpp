#include "formats/bvh/writer.h"
#include "formats/htr/reader.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/replaced_text.h"

namespace {

using test::CodesIn;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::ElementsAre;
using testing::HasSubstr;

using Flags = std::vector<std::string>;

// The motion with a third segment, which is called `name` and hangs from `parent`.
std::string WithThird(const std::string& name, const std::string& parent,
                      const std::string& base = "0 50 0 0 0 0 10") {
  std::string text = Replaced(SmallMotion(), "NumSegments 2", "NumSegments 3");
  text = Replaced(text, "Spine Hips\n", "Spine Hips\n" + name + " " + parent + "\n");
  text = Replaced(text, "250.5\n", "250.5\n" + name + " " + base + "\n");
  return Replaced(
      text, "[EndOfFile]",
      "[" + name + "]\n1 0 0 0 0 0 0 1\n2 0 0 0 0 0 0 1\n" + "3 0 0 0 0 0 0 1\n[EndOfFile]");
}

class RewriteBvhTest : public test::OrvaneTest {
 protected:
  RewriteBvhTest() { Write("take.htr", SmallMotion()); }

  ProgramResult Rewrite(const Flags& flags = {}) const {
    Flags arguments = {"rewrite", "take.htr", "-o", "take.bvh", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  // What the library writes of the motion.
  std::string Written(const orvane::BvhOptions& options) const {
    orvane::HtrDocument document;
    EXPECT_EQ(ReadHtrBytes(document, Read("take.htr"), true), "");
    std::string text;
    PrintBvh(PlanBvh(document, options), [&text](std::string_view piece) { text += piece; });
    return text;
  }
};

TEST_F(RewriteBvhTest, MakesWhatTheLibraryWritesWithTheRateOfTheText) {
  Write("take.htr", Replaced(SmallMotion(), "Rate 60", "Rate 29.97"));
  const ProgramResult result = Rewrite();
  EXPECT_EQ(result.status, 0) << result.error;
  orvane::BvhOptions options;
  options.numbers = orvane::BvhNumbers::kShortest;
  options.frame_time = 100.0 / 2997.0;
  EXPECT_EQ(Read("take.bvh"), Written(options));
  EXPECT_THAT(Read("take.bvh"), HasSubstr("\nFrames: 3\nFrame Time: 0.0333667000333667\n"));
  EXPECT_THAT(Read("take.bvh"), HasSubstr("\n10 900 0 90 0 0 0 0 0\n"));
  EXPECT_EQ(Rewrite({"--decimals", "2"}).status, 0);
  EXPECT_THAT(Read("take.bvh"), HasSubstr("\n10.00 900.00 0.00 90.00 0.00 0.00 0.00 0.00 0.00\n"));
}

TEST_F(RewriteBvhTest, TellsOfTheUnitAlone) {
  const ProgramResult result = Rewrite();
  EXPECT_EQ(result.error,
            "orvane: take.htr: note: Lengths are in mm, which the new file does not say. Other "
            "programs take them for lengths in their own unit; --unit converts them. "
            "[rewrite-unit-lost]\n");
}

TEST_F(RewriteBvhTest, TellsHowFarAHeldSegmentIsOffUnlessItMayMove) {
  Write("take.htr", Replaced(Replaced(SmallMotion(), "Units mm", "Units cm"),
                             "[Spine]\n1 0 0 0 0 0 0 1\n2 0 0", "[Spine]\n1 0 0 0 0 0 0 1\n2 0 7"));
  EXPECT_THAT(Rewrite().error,
              HasSubstr("warning: A segment moves against the one that it hangs from: \"Spine\". "
                        "The new file holds such a segment at its base translation: \"Spine\" is "
                        "farthest from there, by 70.00 mm in frame 2; --positions all lets the "
                        "segments move. [rewrite-translation-held]\n"));
  EXPECT_THAT(Read("take.bvh"), HasSubstr("\tOFFSET 0 100 0\n"));
  EXPECT_THAT(CodesIn(Rewrite({"--positions", "all"}).error), ElementsAre("rewrite-unit-lost"));
  EXPECT_THAT(Read("take.bvh"), HasSubstr("\n10 900 0 90 0 0 0 107 0 0 0 0\n"));
}

struct Loss {
  std::string motion;
  Flags flags;
  std::string told;
};

TEST_F(RewriteBvhTest, TellsWhatABvhFileDoesNotHold) {
  const std::vector<Loss> losses = {
      {SmallMotion(),
       {"--rename", "Spine=Hip{s"},
       "warning: A name cannot stand in the new file as it is: \"Hip{s\". \"Hip{s\" becomes "
       "\"Hip_s\". [rewrite-name-changed]\n"},
      {Replaced(SmallMotion(), "90 1\n", "90 2\n"),
       {},
       "warning: A segment is scaled in some of its frames: \"Hips\". The new file holds no "
       "scales. [rewrite-scale-lost]\n"},
      {Replaced(SmallMotion(), "Hips 0 900 0 0", "Hips 0 900 0 5"),
       {},
       "note: The base position turns 1 segment. In the new file that is part of the motion, and "
       "its own rest pose turns nothing. [rewrite-base-lost]\n"},
      {SmallMotion(),
       {"--start-frame", "7"},
       "note: The first frame has the number 7. The frames of the new file have no numbers. "
       "[rewrite-start-frame-lost]\n"},
      {Replaced(SmallMotion(), "[Spine]\n1 0 0 0 0 0 0 1\n2 0 0 0 0 0 0 1\n3 0 0 0 10 0 0 1\n",
                "[Spine]\n1 0 0 0 0 0 0 1\n"),
       {},
       "warning: A segment holds fewer frames than others: \"Spine\". In the rest of the new file "
       "such a segment stays as it is in its last frame, or in its base position. "
       "[rewrite-frames-held]\n"},
      {WithThird("Tail", "Tail"),
       {},
       "warning: A segment hangs from no root: \"Tail\". The new file is without such a segment. "
       "[rewrite-segment-unattached]\n"},
      {Replaced(SmallMotion().substr(0, SmallMotion().find("[Hips]")) + "[EndOfFile]\n",
                "NumFrames 3", "NumFrames 0"),
       {},
       "warning: No segment holds a frame. The new file has one, the base position. "
       "[rewrite-frame-added]\n"}};
  for (const Loss& loss : losses) {
    Write("take.htr", loss.motion);
    const ProgramResult result = Rewrite(loss.flags);
    EXPECT_EQ(result.status, 0) << loss.told;
    EXPECT_THAT(result.error, HasSubstr(loss.told));
  }
}

TEST_F(RewriteBvhTest, TakesOneOfSeveralRoots) {
  Write("take.htr", WithThird("Prop", "GLOBAL"));
  const ProgramResult refused = Rewrite();
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(
      refused.error,
      HasSubstr("orvane: take.htr: it has 2 roots, \"Hips\", \"Prop\", and a BVH file holds "
                "one\n  --root \"Hips\" takes that with all that hangs from it.\n"));
  EXPECT_FALSE(Exists("take.bvh"));
  const ProgramResult unknown = Rewrite({"--root", "Spine"});
  EXPECT_EQ(unknown.status, 1);
  EXPECT_THAT(unknown.error, HasSubstr("orvane: take.htr: it has no root \"Spine\"\n  Its roots "
                                       "are: \"Hips\", \"Prop\".\n"));
  const ProgramResult prop = Rewrite({"--root", "Prop"});
  EXPECT_EQ(prop.status, 0);
  EXPECT_THAT(prop.output, HasSubstr("\n  Segments  1\n"));
  EXPECT_THAT(Read("take.bvh"), HasSubstr("HIERARCHY\nROOT Prop\n"));
}

TEST_F(RewriteBvhTest, RefusesWhatNoBvhFileHolds) {
  Write("take.htr", Replaced(SmallMotion(), "2 10 0", "2 1e999 0"));
  const ProgramResult infinite = Rewrite({"--cut", "2:3"});
  EXPECT_EQ(infinite.status, 1);
  EXPECT_THAT(
      infinite.error,
      HasSubstr("orvane: take.htr: its segment \"Hips\" has a number in frame 2 that is too "
                "large or none, which a BVH file cannot hold\n"));
  EXPECT_EQ(Rewrite({"--cut", "3:3"}).status, 0);
  Write("take.htr", Replaced(SmallMotion(), "Spine 0 100", "Spine 0 1e999"));
  EXPECT_THAT(Rewrite().error, HasSubstr("\"Spine\" has a number in its base position that"));
  Write("take.htr", Replaced(SmallMotion(), "Rate 60", "Rate 0"));
  EXPECT_THAT(Rewrite().error, HasSubstr("it has no frame rate above 0, which a BVH file needs\n"));
  Write("take.htr", Replaced(SmallMotion(), "Hips GLOBAL", "Hips Spine"));
  EXPECT_THAT(Rewrite().error, HasSubstr("it has no root, of which a BVH file is made\n"));
}

TEST_F(RewriteBvhTest, HasFlagsThatNoOtherFormatTakes) {
  for (const Flags& flags : {Flags{"--positions", "root"}, Flags{"--root", "Hips"}}) {
    const ProgramResult result =
        Orvane({"rewrite", "take.htr", "-o", "new.htr", flags[0], flags[1]});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.error, HasSubstr("orvane: " + flags[0] + ": is for BVH files\n"));
  }
}

}  // namespace
