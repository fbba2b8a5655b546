#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using test::ProgramResult;
using testing::ElementsAre;
using testing::IsEmpty;

// A module of the tests stands in for the plug-in, because it can interrupt the program at a known
// moment.
class InterruptTest : public test::OrvaneTest {
 protected:
  ProgramResult Import(const std::string& wish, const std::vector<std::string>& flags = {}) const {
    Write(wish + ".htr", test::SmallMotion());
    std::vector<std::string> arguments = {"import",    wish + ".htr", "-o",
                                          "scene.glb", "--module",    test::HurriedModule()};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  void ExpectInterrupted(const std::string& wish) const {
    const ProgramResult result = Import(wish);
    EXPECT_EQ(result.status, 130);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error, "orvane: interrupted; nothing was written\n");
    EXPECT_THAT(Names(), ElementsAre(wish + ".htr"));
  }
};

TEST_F(InterruptTest, TheModuleOfTheTestsMakesAScene) {
  EXPECT_EQ(Import("nothing").status, 0);
  EXPECT_THAT(Names(), ElementsAre("nothing.htr", "scene.glb"));
}

TEST_F(InterruptTest, CancelsTheImportThroughTheHost) { ExpectInterrupted("interrupt"); }

TEST_F(InterruptTest, LeavesNothingBehindWhenThePluginDoesNotAsk) {
  ExpectInterrupted("interrupt-unheard");
}

TEST_F(InterruptTest, ASecondOneEndsTheProgramAtOnce) {
  const ProgramResult result = Import("interrupt-twice");
  EXPECT_EQ(result.status, 130);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(Names(), ElementsAre("interrupt-twice.htr"));
}

TEST_F(InterruptTest, LeavesNoTurnedCopyBehind) {
  std::filesystem::create_directory(folder_.Path() / "takes");
  const test::TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t3"}}};
  for (const std::string wish : {"interrupt", "interrupt-unheard", "interrupt-twice"}) {
    Write("takes/" + wish + ".trc", text.Text());
    const ProgramResult result = Orvane({"import", "takes/" + wish + ".trc", "-o", "scene.glb",
                                         "--up", "z", "--module", test::HurriedModule()});
    EXPECT_EQ(result.status, 130) << wish;
    EXPECT_THAT(Names(), ElementsAre("takes")) << wish;
  }
}

TEST_F(InterruptTest, KeepsTheExistingOutput) {
  Write("scene.glb", "the old scene");
  EXPECT_EQ(Import("interrupt", {"--force"}).status, 130);
  EXPECT_EQ(Read("scene.glb"), "the old scene");
}

TEST_F(InterruptTest, IsNotMixedUpWithARefusalWithoutAMessage) {
  Write("silent.htr", "");
  const ProgramResult result =
      Orvane({"import", "silent.htr", "-o", "scene.glb", "--module", test::HurriedModule()});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: silent.htr: error: The file is empty (line 1, column 1). Nothing is imported; "
            "was it saved, or copied, to its end? [htr-empty]\n"
            "orvane: silent.htr: nothing was written because of htr-empty\n");
}

TEST_F(InterruptTest, ARefusalWithoutAnyReasonIsSaidToBeOne) {
  const ProgramResult result = Import("silent");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, "orvane: silent.htr: The plug-in gave up without a message\n");
}

}  // namespace
