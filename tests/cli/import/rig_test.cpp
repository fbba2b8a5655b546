// The example scene that no import has made, exported.

#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::Vector3;

constexpr char kLeftOut[] =
    "orvane: rig.glb: warning: A bone hangs from a node that is no bone: \"Cable\". Such a bone is "
    "left out. [export-below-helper]\n"
    "orvane: rig.glb: warning: A bone has a blank in its name, or the name of another: \"Boom\". "
    "Such a bone is left out, with all below it. [export-name-refused]\n"
    "orvane: rig.glb: note: An effector ends a chain: \"Hook_Effector\". Such an effector "
    "is left out; the bone before it has its length. [export-effector]\n";
constexpr char kOffset[] =
    "orvane: rig.glb: Bone: Boom contains an object offset transformation, the resulting skeleton "
    "may not be correct.\n"
    "  The file says where the node is, and not where its object is drawn.\n";
constexpr char kName[] =
    "orvane: rig.glb: There are multiple identical names or spaces in a bone name.\n"
    "  Every bone needs a name of its own, without blanks; without one it is left out, with all "
    "below it.\n";

class RigTest : public test::OrvaneTest {
 protected:
  RigTest() {
    test::ProgramRun run = Command({});
    run.command = {ORVANE_BINARY_DIR "/bin/make_rig", "rig.glb"};
    EXPECT_EQ(RunProgram(run).status, 0);
  }

  test::ProgramResult Export(const std::string& select, std::vector<std::string> flags = {}) const {
    flags.insert(flags.begin(),
                 {"export", "rig.glb", "--select", select, "-o", "rig.htr", "--force"});
    return Orvane(flags);
  }

  void ReadRig(HtrDocument& document) const {
    EXPECT_EQ(orvane::ReadHtrFile(document, folder_.File("rig.htr"), true), "");
  }

  static void ExpectAt(const Vector3& found, double x, double y, double z) {
    EXPECT_NEAR(found.x(), x, 2e-3);
    EXPECT_NEAR(found.y(), y, 2e-3);
    EXPECT_NEAR(found.z(), z, 2e-3);
  }
};

TEST_F(RigTest, TheProgramTellsHowItIsUsed) {
  test::ProgramRun run = Command({});
  run.command = {ORVANE_BINARY_DIR "/bin/make_rig"};
  const test::ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "Usage: make_rig SCENE.glb\n");
}

TEST_F(RigTest, ItsBonesAreExportedAndTheRestIsLeftOut) {
  // The dummy stands for its bone. The boom is offset; the counterweight hangs from no such bone.
  const test::ProgramResult result = Export("Yard");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, std::string(kLeftOut) + kOffset + kName);
  HtrDocument document;
  ReadRig(document);
  EXPECT_EQ(document.GetSegmentNames(),
            (std::vector<std::string>{"Mast", "Boom", "Counterweight"}));
  EXPECT_EQ(document.GetNumFrames(), 31U);
  EXPECT_EQ(document.GetStartFrame(), 0);
}

TEST_F(RigTest, BonesStandWhereTheyStandInTheWorld) {
  EXPECT_EQ(Export("Mast").status, 0);
  HtrDocument document;
  ReadRig(document);
  // The yard is at (100, 0, 0), twice as large; the mast at 10 of it, in centimetres.
  ExpectAt(document.FindSegment("Mast")->GetFramePosition(0), 1000, 200, 0);
  ExpectAt(document.FindSegment("Mast")->GetFramePosition(30), 1000, 200, 0);
  // 50 along the mast, which is twice as large.
  ExpectAt(document.FindSegment("Boom")->GetFramePosition(0), 0, 1000, 0);
  // The scale of the bone is that of the world, by the length that the file divides it by.
  EXPECT_NEAR(document.FindSegment("Counterweight")->GetFrameScale(0),
              document.FindSegment("Boom")->GetFrameScale(0), 1e-6);
}

TEST_F(RigTest, WithoutParentTransformsTheYardDoesNotCount) {
  EXPECT_EQ(Export("Mast", {"--no-parent-transforms"}).status, 0);
  HtrDocument document;
  ReadRig(document);
  ExpectAt(document.FindSegment("Mast")->GetFramePosition(0), 0, 100, 0);
  ExpectAt(document.FindSegment("Boom")->GetFramePosition(0), 0, 500, 0);
}

TEST_F(RigTest, StrictRefusesWhatIsWarnedOf) {
  const test::ProgramResult result = Export("Mast", {"--strict"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, testing::EndsWith("orvane: --strict: nothing was written because of "
                                              "export-below-helper, export-name-refused\n"));
  EXPECT_FALSE(Exists("rig.htr"));
}

TEST_F(RigTest, ANameOfTwoBonesMeansTheFirst) {
  const test::ProgramResult result = Export("Boom");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error,
              testing::HasSubstr("orvane: --select: 2 nodes of the scene are named Boom\n"));
  HtrDocument document;
  ReadRig(document);
  EXPECT_EQ(document.GetSegmentNames(), std::vector<std::string>{"Boom"});
}

TEST_F(RigTest, AnEffectorAloneLeavesNothingToWrite) {
  const test::ProgramResult result = Export("Hook_Effector");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: rig.glb: No segments to write\n"
            "  Bones with \"Effector\" in their names are left out.\n");
}

TEST_F(RigTest, AMarkerIsNoBone) {
  Write("walk.trc", test::TrcText{.markers = {"LFHD"}, .frames = {{"1\t2\t3"}}}.Text());
  ASSERT_EQ(Orvane({"import", "walk.trc", "-o", "rig.glb", "--force"}).status, 0);
  const test::ProgramResult result = Export("LFHD");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: rig.glb: Please select a Skelder 4 bone object to export\n"
            "  --select NAME takes a bone, or a node that is the parent of one.\n");
}

TEST_F(RigTest, AHelperIsTheParentOfABoneToo) {
  EXPECT_EQ(Export("Pulley").status, 0);
  HtrDocument document;
  ReadRig(document);
  EXPECT_EQ(document.GetSegmentNames(), std::vector<std::string>{"Cable"});
}

}  // namespace
