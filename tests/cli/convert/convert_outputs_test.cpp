#include "tests/cli/convert/convert_test.h"

// Which files a conversion makes, and what becomes of those that are there.

namespace {

using test::ProgramResult;
using test::Slashed;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class ConvertOutputsTest : public test::ConvertTest {};

TEST_F(ConvertOutputsTest, NamesTheOutputAsItIsTold) {
  Write("walk.trc", Take());
  MakeFolder("out");
  EXPECT_EQ(Convert({"walk.trc", "-o", "step.bvk"}).status, 0);
  EXPECT_EQ(Convert({"walk.trc", "-o", "out/bare"}).status, 0);
  EXPECT_EQ(Convert({"walk.trc", "--output-dir", "out"}).status, 0);
  EXPECT_THAT(ReadText("step.bvk"), HasSubstr("$Filename   step\n"));
  EXPECT_THAT(ReadText("out/bare.bvk"), HasSubstr("$Filename   bare\n"));
  EXPECT_THAT(ReadText("out/walk.bvk"), HasSubstr("$Filename   walk\n"));
}

TEST_F(ConvertOutputsTest, KeepsOutputsThatExist) {
  Write("walk.trc", Take());
  Write("walk.bvk", "mine");
  ProgramResult result = Convert({"walk.trc"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: walk.bvk: File exists\n  It is kept; --force replaces it.\n");
  EXPECT_THAT(result.output, HasSubstr("walk.bvk  exists\n"));
  EXPECT_EQ(Read("walk.bvk"), "mine");
  EXPECT_EQ(Convert({"walk.trc", "--force"}).status, 0);
  EXPECT_THAT(ReadText("walk.bvk"), StartsWith("$Comments"));
}

TEST_F(ConvertOutputsTest, KeepsALogThatExists) {
  Write("a.trc", Take());
  Write("b.trc", Take());
  Write("ConvertBVKLog.txt", "mine");
  const ProgramResult result = Convert({"a.trc", "b.trc", "--quiet"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: ConvertBVKLog.txt: File exists\n  It is kept; --force replaces it.\n");
  EXPECT_EQ(Read("ConvertBVKLog.txt"), "mine");
}

TEST_F(ConvertOutputsTest, RefusesOutputsThatMeetBeforeAnythingRuns) {
  MakeFolder("one");
  MakeFolder("two");
  MakeFolder("out");
  Write("one/walk.trc", Take());
  Write("two/walk.trc", Take());
  const ProgramResult result = Convert({"one/walk.trc", "two/walk.trc", "--output-dir", "out"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(Slashed(result.error),
            "orvane: out/walk.bvk: the output of one/walk.trc and of two/walk.trc\n");
  EXPECT_THAT(NamesOf("out"), testing::IsEmpty());
  EXPECT_EQ(Convert({"one/walk.trc", "one/../one/walk.trc"}).status, 2);
  EXPECT_EQ(Convert({"one/walk.trc", "one/walk.trc", "--dry-run"}).status, 2);
}

// Also while it is not there yet.
TEST_F(ConvertOutputsTest, RefusesOneOutputHoweverTheInputsSpellTheirPaths) {
  MakeFolder("sub");
  Write("walk.trc", Take("1"));
  Write("walk.xyz", Take("9"));
  const std::string absolute = Absolute("walk.xyz");
  for (const std::string& other : {std::string("walk.xyz"), std::string("./walk.xyz"),
                                   std::string("sub/../walk.xyz"), absolute}) {
    for (const auto& inputs : {std::vector<std::string>{"walk.trc", other}, {other, "walk.trc"}}) {
      const ProgramResult result = Convert(inputs);
      EXPECT_EQ(result.status, 2) << other;
      EXPECT_THAT(result.error, HasSubstr("walk.bvk: the output of " + inputs[0] + " and of " +
                                          inputs[1] + "\n"));
    }
  }
  EXPECT_THAT(Names(), ElementsAre("sub", "walk.trc", "walk.xyz"));
}

TEST_F(ConvertOutputsTest, RefusesToReplaceAnInput) {
  Write("walk.bvk", Take());
  const ProgramResult result = Convert({"walk.bvk", "--force"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: walk.bvk: is an input, and would be an output too\n");
  EXPECT_EQ(Read("walk.bvk"), Take());
}

TEST_F(ConvertOutputsTest, RefusesToReplaceTheMapping) {
  Write("walk.trc", Take());
  Write("names.bvk", "LFHD Head\n");
  const ProgramResult result =
      Convert({"walk.trc", "--mapping", "./names.bvk", "-o", "names.bvk", "--force"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: names.bvk: is an input, and would be an output too\n");
  EXPECT_EQ(Read("names.bvk"), "LFHD Head\n");
}

// The log of a batch is an output that nobody has named.
TEST_F(ConvertOutputsTest, RefusesToReplaceAnInputByTheLog) {
  MakeFolder("in");
  Write("in/ConvertBVKLog.txt", Take());
  Write("in/walk.trc", Take());
  const std::vector<std::string> both = {"in/ConvertBVKLog.txt", "in/walk.trc", "--force"};
  const ProgramResult result = Convert(both);
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(Slashed(result.error),
            "orvane: in/ConvertBVKLog.txt: is an input, and would be an output too\n");
  EXPECT_EQ(Read("in/ConvertBVKLog.txt"), Take());
  EXPECT_EQ(Convert({"in/ConvertBVKLog.txt", "--force"}).status, 0) << "no log of a single file";
  EXPECT_EQ(Convert({both[0], both[1], "--force", "--output-dir", "."}).status, 0);
}

TEST_F(ConvertOutputsTest, GroupsFilesByTheirFolders) {
  MakeFolder("one");
  MakeFolder("two");
  MakeFolder("out");
  for (const char* name : {"one/a.trc", "two/b.trc", "one/c.trc"}) Write(name, Take());
  EXPECT_EQ(Convert({"one/a.trc", "two/b.trc", "one/c.trc", "--output-dir", "out"}).status, 0);
  EXPECT_THAT(NamesOf("out"), ElementsAre("ConvertBVKLog.txt", "a.bvk", "b.bvk", "c.bvk"));
  const std::string log = ReadText("out/ConvertBVKLog.txt");
  EXPECT_LT(log.find("a.trc done"), log.find("c.trc done"));
  EXPECT_LT(log.find("c.trc done"), log.find("b.trc done"));
  EXPECT_EQ(Convert({"one/a.trc", "two/b.trc", "one/c.trc"}).status, 0);
  EXPECT_THAT(NamesOf("one"), ElementsAre("ConvertBVKLog.txt", "a.bvk", "a.trc", "c.bvk", "c.trc"));
  EXPECT_THAT(NamesOf("two"), ElementsAre("ConvertBVKLog.txt", "b.bvk", "b.trc"));
}

TEST_F(ConvertOutputsTest, TakesNamesOfManyKinds) {
  MakeFolder("o u't");
  const std::vector<std::string> stems = {"50%done", "%s%s%n", "%999999999d", "a b", "it's"};
  std::vector<std::string> arguments = {"--output-dir", "o u't"};
  for (const std::string& stem : stems) {
    Write(stem + ".trc", Take());
    arguments.push_back(stem + ".trc");
  }
  const ProgramResult result = Convert(arguments);
  EXPECT_EQ(result.status, 0) << result.error;
  for (const std::string& stem : stems) {
    EXPECT_THAT(ReadText("o u't/" + stem + ".bvk"), HasSubstr("$Filename   " + stem + "\n"))
        << stem;
  }
}

// The extension says what is in the file.
TEST_F(ConvertOutputsTest, WritesNothingButBvkFiles) {
  Write("walk.trc", Take());
  for (const char* name : {"walk.csv", "walk.trc", "walk.bvk.txt", "walk."}) {
    const ProgramResult result = Convert({"walk.trc", "-o", name, "--force"});
    EXPECT_EQ(result.status, 2) << name;
    EXPECT_THAT(result.error, HasSubstr(std::string(name) + " does not end in .bvk")) << name;
  }
  EXPECT_THAT(Names(), ElementsAre("walk.trc"));
  EXPECT_EQ(Convert({"walk.trc", "-o", "step.BvK"}).status, 0);
  EXPECT_THAT(Names(), ElementsAre("step.BvK", "walk.trc"));
}

}  // namespace
