#include <map>
#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// Standard input in the place of files. Here it is a file itself, which all systems have.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::ProgramRun;
using test::ReadFile;
using test::SmallMotion;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Arguments = std::vector<std::string>;

class StandardInputTest : public test::OrvaneTest {
 protected:
  StandardInputTest() {
    std::filesystem::create_directories(folder_.Path() / "work" / "out");
    std::filesystem::create_directory(folder_.Path() / "temporary");
    for (const std::string name : {"walk.htr", "walk.trc", "walk.mnm"}) {
      Write("work/" + name, ReadFile(ORVANE_SOURCE_DIR "/examples/" + name));
    }
  }

  // Standard input is the file `input` of the folder that it works in; empty: nobody's.
  ProgramRun Run(const Arguments& arguments, const std::string& input) const {
    ProgramRun run = Command(arguments);
    run.folder = folder_.File("work");
    const std::string temporary = folder_.File("temporary");
    run.environment.insert(run.environment.end(), {"TMPDIR=" + temporary, "TMP=" + temporary,
                                                   "SOURCE_DATE_EPOCH=1767323045"});
    if (!input.empty()) run.input_file = folder_.File("work/" + input);
    return run;
  }

  ProgramResult Orvane(const Arguments& arguments, const std::string& input = "") const {
    ProgramResult result = RunProgram(Run(arguments, input));
    EXPECT_THAT(test::NamesIn(folder_.Path() / "temporary"), IsEmpty());
    return result;
  }

  // Of all in the folder "out", which is empty then.
  std::map<std::string, std::string> TakeOutputs() const {
    std::map<std::string, std::string> outputs;
    for (const std::string& name : test::NamesIn(folder_.Path() / "work" / "out")) {
      outputs[name] = Read("work/out/" + name);
      std::filesystem::remove(folder_.File("work/out/" + name));
    }
    return outputs;
  }

  std::vector<std::string> NodesOf(const std::string& scene) const {
    std::vector<std::string> names;
    const json nodes = json::parse(Orvane({"scene", scene, "--json"}).output)["nodes"];
    for (const json& node : nodes) names.push_back(node["name"]);
    return names;
  }
};

struct Use {
  std::string name;
  std::string file;  // what is read
  Arguments before;  // what stands before it
  Arguments behind{};
};

class UseTest : public StandardInputTest, public testing::WithParamInterface<Use> {
 protected:
  static Arguments With(const Arguments& inputs) {
    Arguments arguments = GetParam().before;
    arguments.insert(arguments.end(), inputs.begin(), inputs.end());
    arguments.insert(arguments.end(), GetParam().behind.begin(), GetParam().behind.end());
    return arguments;
  }
};

TEST_P(UseTest, IsThatOfTheFileOfItsName) {
  const std::string& file = GetParam().file;
  const ProgramResult of_file = Orvane(With({file}));
  const auto outputs = TakeOutputs();
  const ProgramResult of_input = Orvane(With({"-", "--name", file}), file);
  EXPECT_EQ(of_input.status, of_file.status);
  EXPECT_EQ(of_input.output, of_file.output);
  EXPECT_EQ(of_input.error, of_file.error);
  EXPECT_EQ(TakeOutputs(), outputs);
}

TEST_P(UseTest, IsToldByItsOwnName) {
  const ProgramResult result = Orvane(With({"-"}), GetParam().file);
  EXPECT_THAT(result.output + result.error, HasSubstr("stdin"));
  EXPECT_THAT(result.output + result.error, Not(HasSubstr("temporary")));
  for (const auto& [name, bytes] : TakeOutputs()) EXPECT_THAT(bytes, Not(HasSubstr("temporary")));
}

INSTANTIATE_TEST_SUITE_P(
    All, UseTest,
    testing::Values(
        Use{"InfoOfMotion", "walk.htr", {"info"}}, Use{"InfoOfMarkers", "walk.trc", {"info"}},
        Use{"InfoWithoutReport", "walk.trc", {"info"}, {"--no-report"}},
        Use{"InfoAmongOthers", "walk.trc", {"info", "walk.htr"}, {"--json"}},
        Use{"Hierarchy", "walk.htr", {"info", "--hierarchy"}}, Use{"Check", "walk.trc", {"check"}},
        Use{"CheckOfMapping", "walk.mnm", {"check"}},
        Use{"CheckForImport", "walk.trc", {"check"}, {"--for", "import", "--json"}},
        Use{"CheckAmongOthers", "walk.trc", {"check", "walk.htr"}, {"--for", "import"}},
        Use{"CompareFirst", "walk.trc", {"compare"}, {"walk.trc"}},
        Use{"CompareSecond", "walk.htr", {"compare", "walk.htr"}, {"--json"}},
        Use{"Import", "walk.htr", {"import"}, {"-o", "out/scene.glb", "--report", "out/a.json"}},
        Use{"ImportOfFrames", "walk.htr", {"import"}, {"-o", "out/scene.glb", "--cut", "7:9"}},
        Use{"ImportOfMarkers", "walk.trc", {"import"}, {"-o", "out/scene.glb", "--json"}},
        Use{"ImportTurned", "walk.trc", {"import"}, {"-o", "out/scene.glb", "--up", "z"}},
        Use{"ImportStrictly", "walk.trc", {"import"}, {"-o", "out/scene.glb", "--strict"}},
        Use{"ImportDry", "walk.trc", {"import"}, {"-o", "out/scene.glb", "--dry-run"}},
        Use{"Convert", "walk.trc", {"convert"}, {"-o", "out/x.bvk", "--report", "out/a.json"}},
        Use{"ConvertByMapping",
            "walk.trc",
            {"convert"},
            {"--output-dir", "out", "--mapping", "walk.mnm", "--names", "subject"}},
        Use{"ConvertOfFrames", "walk.trc", {"convert"}, {"-o", "out/x", "--cut", "7:9"}},
        Use{"ConvertTurned", "walk.trc", {"convert"}, {"--output-dir", "out", "--up", "z"}},
        Use{"ConvertDry", "walk.trc", {"convert"}, {"-o", "out/x.bvk", "--dry-run"}},
        Use{"ConvertNothing", "walk.trc", {"convert"}, {"-o", "out/x.bvk", "--cut", "900:901"}},
        Use{"MapSuggest", "walk.trc", {"map", "suggest"}, {"-o", "out/s.mnm"}},
        Use{"MapShow", "walk.trc", {"map", "show", "walk.mnm"}},
        Use{"MapLint", "walk.trc", {"map", "lint", "walk.mnm"}}),
    [](const auto& use) { return use.param.name; });

// --- What it is ---

struct Kind {
  std::string name;
  std::string bytes;
  Arguments flags;
  std::string file_type;  // empty: refused
  std::string error;
  int status = 0;
};

class KindTest : public StandardInputTest, public testing::WithParamInterface<Kind> {};

TEST_P(KindTest, IsSaidOrSeen) {
  Write("work/input", GetParam().bytes);
  Arguments arguments = {"info", "-", "--json"};
  arguments.insert(arguments.end(), GetParam().flags.begin(), GetParam().flags.end());
  const ProgramResult result = Orvane(arguments, "input");
  EXPECT_EQ(result.status, GetParam().status);
  EXPECT_EQ(result.error, GetParam().error);
  if (GetParam().file_type.empty()) {
    EXPECT_EQ(result.output, "");
  } else {
    EXPECT_EQ(json::parse(result.output).value("file_type", "HTR"), GetParam().file_type);
  }
}

constexpr char kUnknown[] =
    "orvane: stdin: What it is cannot be seen from its first lines\n"
    "  --as htr or --as trc says it.\n";

// Of one frame.
std::string SmallMarkers() {
  return test::TrcText{.markers = {"Head"}, .frames = {{"1\t2\t3"}}}.Text();
}

INSTANTIATE_TEST_SUITE_P(
    All, KindTest,
    testing::Values(
        Kind{"Motion", SmallMotion(), {}, "HTR", ""},
        Kind{"Markers", SmallMarkers(), {}, "TRC", ""},
        Kind{"MarkersAsSaid", SmallMarkers(), {"--as", "trc"}, "TRC", ""},
        Kind{"MarkersByName", SmallMarkers(), {"--name", "a.TRC"}, "TRC", ""},
        Kind{"MarkersUnderANameThatSaysNothing", SmallMarkers(), {"--name", "a.txt"}, "TRC", ""},
        Kind{"MarkersUnderANameWithoutExtension", SmallMarkers(), {"--name", "a"}, "TRC", ""},
        Kind{"MarkersCalledMotion",
             SmallMarkers(),
             {"--name", "a.htr"},
             "",
             "orvane: a.htr: error: The file is a TRC file, not an HTR file (line 1, column 1). "
             "\"orvane import\" and \"orvane info\" take it, by a name that ends in .trc or with "
             "\"--as trc\". [htr-other-kind]\n",
             1},
        Kind{"MotionCalledMarkersAsSaid",
             SmallMotion(),
             {"--name", "a.trc", "--as", "htr"},
             "HTR",
             ""},
        Kind{"Nothing",
             "",
             {},
             "",
             "orvane: stdin: error: The file is empty (line 1, column 1). Nothing is read. "
             "[htr-empty]\n",
             1},
        Kind{"NoMarkers",
             "",
             {"--as", "trc"},
             "",
             "orvane: stdin: error: The file is empty (line 1, column 1). Nothing is read; "
             "was it saved, or copied, to its end? [trc-empty]\n",
             1},
        Kind{"Archive",
             "\x1F\x8B\x08",
             {},
             "",
             "orvane: stdin: error: The file is a gzip archive, not an HTR file (line 1, column "
             "1). Unpack it first. [htr-other-kind]\n",
             1},
        Kind{"SomethingElse", "Hello\n", {}, "", kUnknown, 2}),
    [](const auto& kind) { return kind.param.name; });

TEST_F(StandardInputTest, OfAComparisonIsWhatTheOtherFileIs) {
  Write("work/input", "Hello\n");
  const std::string tabs = "The first line needs tabs";
  EXPECT_THAT(Orvane({"compare", "-", "walk.trc"}, "input").error, HasSubstr(tabs));
  EXPECT_THAT(Orvane({"compare", "walk.trc", "-"}, "input").error, HasSubstr(tabs));
  EXPECT_EQ(Orvane({"compare", "walk.htr", "-"}, "walk.trc").error.substr(0, 47),
            "orvane: stdin: is of another kind than walk.htr");
}

// --- What it is not for ---

struct Misuse {
  std::string name;
  Arguments arguments;
  std::string error;
};

class MisuseTest : public StandardInputTest, public testing::WithParamInterface<Misuse> {};

TEST_P(MisuseTest, IsWrongUsage) {
  const ProgramResult result = Orvane(GetParam().arguments, "walk.trc");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.error, "orvane: " + GetParam().error);
  EXPECT_THAT(TakeOutputs(), IsEmpty());
}

constexpr char kGiveAFile[] = "\n  Give the name of a file; one that is called - is \"./-\".\n";
constexpr char kNoScene[] = "-: A scene is not read from standard input";
constexpr char kNoMapping[] = "-: A mapping is not read from standard input";
constexpr char kTwice[] = "-: is given twice, and can be read but once\n";
constexpr char kHelpOfInfo[] = "\n  \"orvane info --help\" lists what there is.\n";

std::string Line(const char* first, const char* second) { return std::string(first) + second; }

INSTANTIATE_TEST_SUITE_P(
    All, MisuseTest,
    testing::Values(
        Misuse{"Twice", {"info", "-", "-"}, kTwice},
        Misuse{"OnBothSides", {"compare", "-", "-"}, kTwice},
        Misuse{"AgainstAFolder",
               {"compare", "-", "out"},
               "-: is compared with a file, and out is a folder\n"},
        Misuse{"AsASceneToStartFrom",
               {"import", "walk.htr", "-o", "out/scene.glb", "--into", "-"},
               Line(kNoScene, kGiveAFile)},
        Misuse{"AsAScene", {"scene", "-"}, Line(kNoScene, kGiveAFile)},
        Misuse{"AsASceneToExport",
               {"export", "-", "--select", "Hips", "-o", "out/a.htr"},
               Line(kNoScene, kGiveAFile)},
        Misuse{"AsASceneToCheck", {"check", "-", "--for", "export"}, Line(kNoScene, kGiveAFile)},
        Misuse{"AsTheMappingOfAConversion",
               {"convert", "walk.trc", "--mapping", "-", "-o", "out/a.bvk"},
               Line(kNoMapping, kGiveAFile)},
        Misuse{"AsTheMappingToShow", {"map", "show", "-"}, Line(kNoMapping, kGiveAFile)},
        Misuse{"AsTheMappingToLint", {"map", "lint", "-"}, Line(kNoMapping, kGiveAFile)},
        Misuse{"ConvertedToNowhere",
               {"convert", "-"},
               "-: standard input lies in no folder, which its output could go to\n"
               "  -o OUT or --output-dir DIR says where.\n"},
        Misuse{"ANameForFiles",
               {"info", "walk.htr", "--name", "a.htr"},
               "--name: is for standard input, and only files are given\n"
               "  - in the place of FILE is standard input.\n"},
        Misuse{"AnEmptyName",
               {"info", "-", "--name", ""},
               Line("--name: takes a name that is not empty", kHelpOfInfo)},
        Misuse{"ANameInAFolder",
               {"info", "-", "--name", "takes/a.htr"},
               Line("--name: takes a name without folders", kHelpOfInfo)},
        Misuse{"ANameInAFolderOfWindows",
               {"info", "-", "--name", "takes\\a.htr"},
               Line("--name: takes a name without folders", kHelpOfInfo)},
        Misuse{"TheNameOfAFolder",
               {"info", "-", "--name", ".."},
               Line("--name: takes the name of a file, and .. is a folder", kHelpOfInfo)},
        Misuse{"ANameWithAControlCharacter",
               {"info", "-", "--name", "a\tb.htr"},
               Line("--name: takes a name without control characters", kHelpOfInfo)},
        Misuse{"ALongName",
               {"info", "-", "--name", std::string(252, 'a')},
               Line("--name: takes a name of 251 bytes at the most", kHelpOfInfo)}),
    [](const auto& misuse) { return misuse.param.name; });

// --- What becomes of it ---

TEST_F(StandardInputTest, ScenesAndConversionsAreCalledByIt) {
  for (const auto& [name, node] :
       {std::pair<std::string, std::string>{"stdin", "stdin"}, {"Anna.htr", "Anna"}}) {
    ASSERT_EQ(Orvane({"import", "-", "-o", "out/scene.glb", "--name", name}, "walk.htr").status, 0);
    EXPECT_EQ(NodesOf("out/scene.glb").front(), node);
    TakeOutputs();
  }
  ASSERT_EQ(Orvane({"convert", "-", "walk.trc", "--output-dir", "out"}, "walk.trc").status, 0);
  EXPECT_THAT(test::ReadTextFile(folder_.File("work/out/ConvertBVKLog.txt")),
              HasSubstr("\nfile: stdin done.\n"));
  EXPECT_THAT(test::ReadTextFile(folder_.File("work/out/stdin.bvk")),
              HasSubstr("$Filename   stdin\n"));
}

TEST_F(StandardInputTest, BytesAreTakenAsTheyAre) {
  // More of it than is looked at for its kind.
  std::string comments = "# \x1a \n";
  for (int line = 0; line < 50'000; ++line) comments += "#\r\n";
  Write("work/input.htr", SmallMotion() + comments + "\x1a");
  const ProgramResult of_file = Orvane({"check", "input.htr", "--json"});
  const ProgramResult result = Orvane({"check", "-", "--name", "input.htr", "--json"}, "input.htr");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, of_file.output);
}

TEST_F(StandardInputTest, AFileThatIsCalledADashIsGivenWithItsFolder) {
  Write("work/-", Read("work/walk.mnm"));
  EXPECT_EQ(Orvane({"map", "lint", "./-"}).status, 0);
}

}  // namespace
