#include <sstream>

#include "tests/cli/orvane_test.h"

namespace {

using test::ProgramResult;
using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

using HelpTest = test::OrvaneTest;

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

TEST_F(HelpTest, AloneTheProgramSaysWhatItIsAndHowItIsUsed) {
  const ProgramResult result = Orvane({});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(result.error,
            "orvane brings motion-capture files into scenes that any glTF viewer plays, and "
            "skeletons out.\n"
            "\"orvane help\" lists its verbs, and \"orvane help VERB\" the flags of one.\n"
            "All of it is in docs/command-line.md, and where man pages are, in \"man orvane\".\n"
            "\n"
            "Examples:\n"
            "  orvane info walk.htr\n"
            "      tell what a motion file holds\n"
            "  orvane import walk.htr -o walk.glb\n"
            "      make a scene of it, to be played in any viewer\n");
}

TEST_F(HelpTest, TheVerbHelpShowsWhatTheFlagShows) {
  EXPECT_EQ(Orvane({"help"}).output, Orvane({"--help"}).output);
  EXPECT_EQ(Orvane({"help", "import"}).output, Orvane({"import", "--help"}).output);
  EXPECT_EQ(Orvane({"help", "map"}).output, Orvane({"map", "--help"}).output);
  EXPECT_EQ(Orvane({"help", "help"}).output, Orvane({"help", "--help"}).output);
  const ProgramResult result = Orvane({"help", "map", "create"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_EQ(result.output, Orvane({"map", "create", "--help"}).output);
}

TEST_F(HelpTest, BeginsWithWhatTheVerbIsForAndTwoExamples) {
  EXPECT_THAT(Orvane({"export", "--help"}).output,
              StartsWith("Export a skeleton of a scene as a motion file\n"
                         "\n"
                         "Examples:\n"
                         "  orvane export walk.glb --select Hips -o back.htr\n"
                         "      the skeleton that Hips belongs to\n"
                         "  orvane export walk.glb --select Hips -o part.htr --range 10:60\n"
                         "      a part of its frames\n"
                         "\n"
                         "Usage: orvane export [OPTIONS] SCENE -o FILE\n"));
}

TEST_F(HelpTest, TellsInWordsWhatIsRequiredAndWhatDoesNotGoTogether) {
  const std::string help = Orvane({"help", "import"}).output;
  EXPECT_THAT(help, HasSubstr("\nUsage: orvane import [OPTIONS] FILE -o SCENE\n"));
  EXPECT_THAT(help,
              HasSubstr("  FILE                        The HTR or TRC file, or - for standard "
                        "input\n"
                        "                              (required)\n"));
  EXPECT_THAT(help, HasSubstr("  -o, --output SCENE          The scene to write: binary to a name "
                              "in .glb,\n"
                              "                              text to one in .gltf (required)\n"));
  EXPECT_THAT(help, HasSubstr("HTR: rotate by TCB controllers (not with --euler)\n"));
  EXPECT_THAT(help, Not(AnyOf(HasSubstr("Excludes"), HasSubstr("Needs"), HasSubstr("REQUIRED"),
                              HasSubstr("SUBCOMMAND"))));
}

TEST_F(HelpTest, TellsAFlagAndItsOppositeOnOneLine) {
  const std::string help = Orvane({"help", "import"}).output;
  EXPECT_THAT(help, HasSubstr("\n  --animation, --no-animation\n" + std::string(30, ' ') +
                              "HTR: set keys for the frames of the file (yes)\n"));
  EXPECT_THAT(help, Not(HasSubstr("The opposite of")));
}

TEST_F(HelpTest, SaysWhichFlagAnotherOneNeeds) {
  EXPECT_THAT(Orvane({"help", "convert"}).output, HasSubstr("(trc) (only with\n"));
}

TEST_F(HelpTest, ListsTheVerbsOfAVerb) {
  const std::string help = Orvane({"help", "map"}).output;
  EXPECT_THAT(help, HasSubstr("\nUsage: orvane map VERB ...\n\nVerbs:\n  create  "));
}

TEST_F(HelpTest, FitsATerminalOfEightyColumns) {
  for (const char* verb : {"import", "export", "info", "convert", "check", "compare", "scene"}) {
    for (const std::string& line : LinesOf(Orvane({"help", verb}).output)) {
      EXPECT_LT(line.size(), 80U) << verb << ": " << line;
    }
  }
}

struct Mistake {
  std::string name;
  std::vector<std::string> arguments;
  std::string error;
};

class MistakeTest : public test::OrvaneTest, public testing::WithParamInterface<Mistake> {};

TEST_P(MistakeTest, IsToldWithWhatWasMeant) {
  const ProgramResult result = Orvane(GetParam().arguments);
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(result.error, GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    All, MistakeTest,
    testing::Values(
        Mistake{"Verb",
                {"imprt", "walk.htr"},
                "orvane: there is no verb \"imprt\"; did you mean \"import\"?\n"
                "  \"orvane --help\" lists what there is.\n"},
        Mistake{"VerbWithHelp",
                {"imprt", "--help"},
                "orvane: there is no verb \"imprt\"; did you mean \"import\"?\n"
                "  \"orvane --help\" lists what there is.\n"},
        Mistake{"BeginningOfAVerb",
                {"conv", "walk.trc"},
                "orvane: there is no verb \"conv\"; did you mean \"convert\"?\n"
                "  \"orvane --help\" lists what there is.\n"},
        Mistake{"VerbOfAVerb",
                {"map", "craete", "walk.trc"},
                "orvane: there is no verb \"craete\"; did you mean \"create\"?\n"
                "  \"orvane map --help\" lists what there is.\n"},
        Mistake{"HelpOfAVerb",
                {"help", "exprt"},
                "orvane: there is no verb \"exprt\"; did you mean \"export\"?\n"
                "  \"orvane --help\" lists what there is.\n"},
        Mistake{"HelpOfAVerbOfAVerb",
                {"help", "map", "lnit"},
                "orvane: there is no verb \"lnit\"; did you mean \"lint\"?\n"
                "  \"orvane map --help\" lists what there is.\n"},
        Mistake{"VerbOfAVerbByItself",
                {"suggest", "walk.trc"},
                "orvane: there is no verb \"suggest\"; did you mean \"map suggest\"?\n"
                "  \"orvane --help\" lists what there is.\n"},
        Mistake{"VerbWithoutOneOfItsOwn",
                {"map"},
                "orvane: a verb is missing behind \"map\"\n"
                "  \"orvane map --help\" lists what there is.\n"},
        Mistake{"VerbLikeNone",
                {"dance"},
                "orvane: there is no verb \"dance\"\n  \"orvane --help\" lists what there is.\n"},
        Mistake{"Flag",
                {"import", "walk.htr", "-o", "walk.glb", "--rnage", "1:2"},
                "orvane: there is no flag \"--rnage\"; did you mean \"--range\"?\n"
                "  \"orvane import --help\" lists what there is.\n"},
        Mistake{"FlagWhoseValueIsTakenForTheFile",
                {"import", "--rnage", "1:2", "walk.htr"},
                "orvane: there is no flag \"--rnage\"; did you mean \"--range\"?\n"
                "  \"orvane import --help\" lists what there is.\n"},
        Mistake{"FlagWithItsValue",
                {"import", "walk.htr", "--rnage=1:2"},
                "orvane: there is no flag \"--rnage\"; did you mean \"--range\"?\n"
                "  \"orvane import --help\" lists what there is.\n"},
        Mistake{"OppositeOfAFlag",
                {"import", "walk.htr", "--no-animtion"},
                "orvane: there is no flag \"--no-animtion\"; did you mean \"--no-animation\"?\n"
                "  \"orvane import --help\" lists what there is.\n"},
        Mistake{"MistypedChoice",
                {"convert", "a.trc", "--mapping", "m.mnm", "--names", "subjct"},
                "orvane: --names: subjct is not one of exact, case, subject; did you mean "
                "\"subject\"?\n"
                "  \"orvane convert --help\" lists what there is.\n"},
        Mistake{"ShortChoiceWithLettersSwapped",
                {"info", "a.trc", "--as", "hrt"},
                "orvane: --as: hrt is not one of htr, trc; did you mean \"htr\"?\n"
                "  \"orvane info --help\" lists what there is.\n"},
        Mistake{"MistypedAction",
                {"check", "a.trc", "--for", "imprt"},
                "orvane: --for: imprt is not one of import, apply, convert, export, rewrite; did "
                "you mean "
                "\"import\"?\n"
                "  \"orvane check --help\" lists what there is.\n"},
        Mistake{"ChoiceLikeNone",
                {"convert", "a.trc", "--up", "zz"},
                "orvane: --up: zz is not one of y, z\n"
                "  \"orvane convert --help\" lists what there is.\n"},
        Mistake{"MistypedCode",
                {"import", "a.htr", "-o", "a.glb", "--strict", "--allow", "htr-frame-cuont"},
                "orvane: --allow: no finding has the code htr-frame-cuont; did you mean "
                "\"htr-frame-count\"?\n"
                "  \"orvane import --help\" lists what there is.\n"},
        Mistake{"BeginningOfACode",
                {"convert", "a.trc", "--strict", "--allow", "trc-marker-gaps,trc-unit-unk"},
                "orvane: --allow: no finding has the code trc-unit-unk; did you mean "
                "\"trc-unit-unknown\"?\n"
                "  \"orvane convert --help\" lists what there is.\n"},
        Mistake{"MistypedWordBesideCodes",
                {"convert", "a.trc", "--allow", "emty"},
                "orvane: --allow: no finding has the code emty; did you mean \"empty\"?\n"
                "  \"orvane convert --help\" lists what there is.\n"},
        Mistake{"CodeLikeNone",
                {"import", "a.htr", "-o", "a.glb", "--strict", "--allow", "everything"},
                "orvane: --allow: no finding has the code everything\n"
                "  \"orvane import --help\" lists what there is.\n"},
        Mistake{"FileThatBeginsWithADash",
                {"info", "-walk.htr"},
                "orvane: there is no flag \"-walk.htr\"\n"
                "  \"orvane info --help\" lists what there is. A file of that name is "
                "\"./-walk.htr\".\n"}),
    [](const auto& test_case) { return test_case.param.name; });

TEST_F(HelpTest, AFileMayBeginWithADash) {
  Write("-walk.htr", test::SmallMotion());
  EXPECT_THAT(Orvane({"info", "./-walk.htr"}).output, StartsWith("./-walk.htr\n"));
  EXPECT_THAT(Orvane({"info", "--", "-walk.htr"}).output, StartsWith("-walk.htr\n"));
}

}  // namespace
