#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char kScaleFactor[] =
    "orvane: walk.htr: warning: ScaleFactor is not 1: \"2\" (line 13, column 13). Nothing is "
    "multiplied by it; --scale multiplies. [htr-scale-factor]\n";
constexpr char kSecondRoot[] =
    "orvane: walk.htr: warning: There is a second root: \"Spine\" (line 16, column 1). A new "
    "skeleton is made of the first root and what hangs from it alone. [htr-root-second]\n";
constexpr char kNoEnd[] =
    "orvane: walk.htr: note: [EndOfFile] is missing (line 28, column 1). Nothing is lost, unless "
    "the file was cut short. [htr-end-missing]\n";
constexpr char kPluginsOwn[] =
    "orvane: walk.htr: ScaleFactor is not 1.0, this plugin does not support the ScaleFactor header "
    "variable.\n"
    "  Lengths are taken as they stand; --scale multiplies them.\n";
constexpr char kStrict[] =
    "orvane: --strict: nothing was written because of htr-scale-factor, htr-root-second\n";

// A file of two warnings and a note.
std::string OddMotion() {
  std::string text = Replaced(SmallMotion(), "ScaleFactor 1.0", "ScaleFactor 2");
  text = Replaced(text, "Spine Hips", "Spine GLOBAL");
  return Replaced(text, "[EndOfFile]\n", "");
}

class ImportReportTest : public test::OrvaneTest {
 protected:
  ImportReportTest() { Write("walk.htr", OddMotion()); }

  ProgramResult Import(const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", "walk.glb"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  void ExpectWrongUsage(const std::vector<std::string>& flags, const std::string& error) const {
    const std::vector<std::string> before = Names();
    const ProgramResult result = Import(flags);
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.error, HasSubstr(error));
    EXPECT_EQ(Names(), before);
  }

  nlohmann::json ReportIn(const std::string& name) const {
    return nlohmann::json::parse(Read(name));
  }
};

TEST_F(ImportReportTest, TellsALineForEachCodeTheWorstFirst) {
  const ProgramResult result = Import();
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, std::string(kScaleFactor) + kSecondRoot + kNoEnd + kPluginsOwn);
}

TEST_F(ImportReportTest, TellsNothingOfASoundFile) {
  Write("walk.htr", SmallMotion());
  const ProgramResult result = Import();
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output, testing::Not(HasSubstr("Report")));
}

TEST_F(ImportReportTest, WithQuietNotesAreNotTold) {
  const ProgramResult result = Import({"--quiet"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(result.error, std::string(kScaleFactor) + kSecondRoot + kPluginsOwn);
}

// --- --strict and --allow ---

TEST_F(ImportReportTest, WithStrictAWarningIsARefusal) {
  const ProgramResult result = Import({"--strict"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, std::string(kScaleFactor) + kSecondRoot + kNoEnd + kStrict);
  EXPECT_THAT(Names(), ElementsAre("walk.htr"));
}

TEST_F(ImportReportTest, WithStrictANoteIsNone) {
  Write("walk.htr", Replaced(SmallMotion(), "[EndOfFile]\n", ""));
  const ProgramResult result = Import({"--strict"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, kNoEnd);
}

TEST_F(ImportReportTest, AllowLetsCodesPassAndTheyAreStillTold) {
  const ProgramResult result = Import({"--strict", "--allow", "htr-scale-factor,htr-root-second"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, std::string(kScaleFactor) + kSecondRoot + kNoEnd + kPluginsOwn);
  EXPECT_EQ(
      Import({"--strict", "--allow", "htr-scale-factor", "--allow", "htr-root-second", "--force"})
          .status,
      0);
}

TEST_F(ImportReportTest, AllowLetsNoOtherCodePass) {
  const std::pair<const char*, const char*> rows[] = {
      {"htr-scale-factor", "because of htr-root-second\n"},
      {"htr-root-second", "because of htr-scale-factor\n"},
      {"trc-marker-gaps", kStrict}};
  for (const auto& [code, reason] : rows) {
    const ProgramResult result = Import({"--strict", "--allow", code});
    EXPECT_EQ(result.status, 1) << code;
    EXPECT_THAT(result.error, EndsWith(reason)) << code;
    EXPECT_FALSE(Exists("walk.glb")) << code;
  }
}

TEST_F(ImportReportTest, AllowWithoutStrictIsWrongUsage) {
  ExpectWrongUsage({"--allow", "htr-scale-factor"}, "--allow requires --strict");
}

TEST_F(ImportReportTest, AllowOfAnUnknownCodeIsWrongUsage) {
  ExpectWrongUsage({"--strict", "--allow", "htr-scale-factor,htr-scale"},
                   "no finding has the code htr-scale");
}

// --- --report ---

TEST_F(ImportReportTest, IsWrittenAsJson) {
  ASSERT_EQ(Import({"--report", "odd.json"}).status, 0);
  const nlohmann::json report = ReportIn("odd.json");
  EXPECT_EQ(report["version"], 2);
  ASSERT_EQ(report["files"].size(), 1U);
  const nlohmann::json file = report["files"][0];
  EXPECT_EQ(file["file"], "walk.htr");
  EXPECT_EQ(file["file_type"], "HTR");
  EXPECT_EQ(file["action"], "import");
  EXPECT_EQ(file["errors"], 0);
  EXPECT_EQ(file["warnings"], 2);
  EXPECT_EQ(file["notes"], 1);
  ASSERT_EQ(file["findings"].size(), 3U);
  EXPECT_EQ(file["findings"][0], nlohmann::json::parse(R"({
    "code": "htr-scale-factor", "severity": "warning", "count": 1, "line": 13, "column": 13,
    "names": ["2"], "cause": "ScaleFactor is not 1",
    "consequence": "Nothing is multiplied by it; --scale multiplies."})"));
}

TEST_F(ImportReportTest, IsWrittenOfASoundFileToo) {
  Write("walk.htr", SmallMotion());
  ASSERT_EQ(Import({"--report", "sound.json", "--quiet"}).status, 0);
  EXPECT_THAT(ReportIn("sound.json")["files"][0]["findings"], IsEmpty());
}

TEST_F(ImportReportTest, IsWrittenWithItsNotesWhenNothingElseIs) {
  EXPECT_EQ(Import({"--report", "odd.json", "--strict", "--quiet"}).status, 1);
  EXPECT_THAT(Names(), ElementsAre("odd.json", "walk.htr"));
  EXPECT_EQ(ReportIn("odd.json")["files"][0]["notes"], 1);
}

TEST_F(ImportReportTest, NamesTheActionThatWasChosen) {
  Write("sound.htr", SmallMotion());
  ASSERT_EQ(Orvane({"import", "sound.htr", "-o", "bones.glb"}).status, 0);
  ASSERT_EQ(
      Import({"--into", "bones.glb", "--apply", "--select", "Hips", "--report", "odd.json"}).status,
      0);
  EXPECT_EQ(ReportIn("odd.json")["files"][0]["action"], "apply");
}

TEST_F(ImportReportTest, TakesThePlaceOfAnEarlierOne) {
  Write("odd.json", "an earlier report");
  EXPECT_EQ(Import({"--report", "odd.json"}).status, 0);
  EXPECT_EQ(ReportIn("odd.json")["version"], 2);
}

TEST_F(ImportReportTest, IntoAFolderThatIsNotThereKeepsTheSceneFromBeingWritten) {
  const ProgramResult result = Import({"--report", "nowhere/odd.json"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_THAT(result.error, HasSubstr("orvane: nowhere/odd.json: "));
  EXPECT_THAT(Names(), ElementsAre("walk.htr"));
}

TEST_F(ImportReportTest, InThePlaceOfAnInputIsWrongUsage) {
  for (const char* const name : {"walk.htr", "./walk.htr"}) {
    ExpectWrongUsage({"--report", name}, std::string("orvane: ") + name +
                                             ": is an input, and would be an output too\n");
  }
  EXPECT_EQ(Read("walk.htr"), OddMotion());
  ASSERT_EQ(Import().status, 0);
  std::filesystem::rename(folder_.File("walk.glb"), folder_.File("base.glb"));
  const std::string scene = Read("base.glb");
  ExpectWrongUsage({"--into", "base.glb", "--report", "base.glb"},
                   "orvane: base.glb: is an input, and would be an output too\n");
  EXPECT_EQ(Read("base.glb"), scene);
}

TEST_F(ImportReportTest, InThePlaceOfTheSceneIsWrongUsage) {
  for (const char* const name : {"walk.glb", "./walk.glb"}) {
    ExpectWrongUsage(
        {"--report", name, "--force"},
        std::string("orvane: ") + name + ": would be the report and another output too\n");
  }
}

TEST_F(ImportReportTest, WithoutANameIsWrongUsage) {
  ExpectWrongUsage({"--report", ""}, "--report");
}

// --- --no-report ---

TEST_F(ImportReportTest, CanBeLeftOutWhichTheSummaryTells) {
  const ProgramResult result = Import({"--no-report"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, kPluginsOwn);
  EXPECT_THAT(result.output, EndsWith(" bytes)\n  Report  none: --no-report\n"));
}

TEST_F(ImportReportTest, LeftOutTheSceneIsTheSame) {
  ASSERT_EQ(Import().status, 0);
  const std::string scene = Read("walk.glb");
  ASSERT_EQ(Import({"--no-report", "--force"}).status, 0);
  EXPECT_EQ(Read("walk.glb"), scene);
}

TEST_F(ImportReportTest, LeftOutFarTooMuchWorkIsRefusedAllTheSame) {
  Write("walk.htr", Replaced(SmallMotion(), "NumFrames 3", "NumFrames 2000000000"));
  const ProgramResult result = Import({"--no-report"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: walk.htr: The header announces 2000000000 frames, but the file holds 3\n"
            "  Is \"NumFrames\" right? --range FROM:TO imports a part of them.\n");
  EXPECT_FALSE(Exists("walk.glb"));
}

TEST_F(ImportReportTest, LeftOutAFileWithoutMarkersIsRefusedAllTheSame) {
  Write("walk.trc", "");
  const ProgramResult result = Orvane({"import", "walk.trc", "-o", "walk.glb", "--no-report"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, testing::StartsWith("orvane: walk.trc: The file holds no markers\n"));
}

TEST_F(ImportReportTest, LeftOutThereIsNothingToWriteOrToMind) {
  ExpectWrongUsage({"--no-report", "--strict"}, "excludes");
  ExpectWrongUsage({"--no-report", "--report", "odd.json"}, "excludes");
}

// --- The frame rate ---

struct OddRate {
  const char* name;
  std::string rate;
  std::string cause;
  std::string effect;
  std::string code;
};

class OddRateTest : public ImportReportTest, public testing::WithParamInterface<OddRate> {
 protected:
  OddRateTest() {
    Write("walk.htr",
          Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate " + GetParam().rate));
  }

  static std::string Line(const std::string& severity, const std::string& effect) {
    return "orvane: walk.htr: " + severity + ": " + GetParam().cause + ": \"" + GetParam().rate +
           "\" (line 7, column 15). " + effect + " [" + GetParam().code + "]\n";
  }
};

TEST_P(OddRateTest, IsAWarningWhenItIsAskedFor) {
  const ProgramResult result = Import({"--time", "host"});
  EXPECT_EQ(result.error, Line("warning", GetParam().effect));
  EXPECT_EQ(Import({"--strict", "--force", "--time", "host"}).status, 1);
}

TEST_P(OddRateTest, IsANoteWhenTheScenesIsKept) {
  const ProgramResult result = Import({"--frame-rate", "keep", "--strict"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, Line("note", "The frame rate of the file is not asked for."));
}

INSTANTIATE_TEST_SUITE_P(
    All, OddRateTest,
    testing::Values(OddRate{"Fraction", "59.94", "The frame rate has a fraction",
                            "59.94 a second become 59.3 in the host: a minute lasts 60.7 s there.",
                            "htr-rate-cut"},
                    OddRate{"OutOfRange", "0", "There is no such frame rate",
                            "1 is set, unless --frame-rate keep is "
                            "given.",
                            "htr-rate-out-of-range"}),
    [](const auto& each) { return each.param.name; });

// --- What motion that is applied makes of a hierarchy without a start ---

class HeadlessTest : public ImportReportTest {
 protected:
  // Onto the bones of a sound file, of which `bone` is selected.
  ProgramResult Apply(const std::string& bone) const {
    Write("sound.htr", SmallMotion());
    EXPECT_EQ(Orvane({"import", "sound.htr", "-o", "bones.glb", "--no-animation"}).status, 0);
    return Import({"--into", "bones.glb", "--apply", "--select", bone});
  }

  std::size_t KeysOf(const std::string& bone) const {
    return test::SceneFile(folder_.File("walk.glb")).KeyTimes(bone).size();
  }
};

TEST_F(HeadlessTest, WithoutARootTheSelectedBoneIsKeyed) {
  Write("walk.htr", Replaced(SmallMotion(), "Hips GLOBAL", "Hips World"));
  const ProgramResult result = Apply("Hips");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(
      result.error,
      HasSubstr("warning: No segment has the parent GLOBAL (line 14, column 2). Only a bone "
                "that is selected itself gets keys, with those below; as a root, it lies "
                "down. [htr-root-missing]\n"));
  EXPECT_EQ(KeysOf("Hips"), 3U);
  EXPECT_EQ(KeysOf("Spine"), 3U);
}

TEST_F(HeadlessTest, WithoutBasePositionsOnlyTheSelectedBoneIsKeyed) {
  const std::string text = SmallMotion();
  const std::size_t base = text.find("[BasePosition]");
  Write("walk.htr", Replaced(text.substr(0, base) + text.substr(text.find("[Hips]")),
                             "NumSegments 2", "NumSegments 0"));
  const ProgramResult result = Apply("Hips");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(
      result.error,
      HasSubstr("warning: There is no [BasePosition] before the motion (line 17, column 2). "
                "Only a bone that is selected itself gets keys, with angles taken as "
                "radians. [htr-base-missing]\n"));
  EXPECT_EQ(KeysOf("Hips"), 3U);
  EXPECT_EQ(KeysOf("Spine"), 0U);
}

}  // namespace
