#include <gmock/gmock.h>

#include <algorithm>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using test::ProgramResult;
using test::SmallMotion;
using test::TrcText;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// Files of other kinds than those that verbs read.
class OtherKindTest : public test::OrvaneTest {
 protected:
  OtherKindTest() {
    Write("walk.htr", SmallMotion());
    Write("walk.trc", TrcText{.markers = {"Head"}, .frames = {{"1\t2\t3"}, {"4\t5\t6"}}}.Text());
    EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "walk.glb"}).status, 0);
    EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "walk.gltf"}).status, 0);
    EXPECT_EQ(Orvane({"convert", "walk.trc", "-o", "walk.bvk"}).status, 0);
  }

  // That the verb refuses what it gets, and tells the kind first and no other finding.
  void ExpectOneFinding(const std::vector<std::string>& arguments, const std::string& told) const {
    const ProgramResult result = Orvane(arguments);
    EXPECT_NE(result.status, 0) << arguments.front();
    EXPECT_THAT(result.error, StartsWith("orvane: " + told)) << arguments.front();
    EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '['), 1) << result.error;
  }
};

TEST_F(OtherKindTest, IsToldInOneLineByACheck) {
  EXPECT_EQ(Orvane({"check", "walk.glb"}).output,
            "walk.glb:1:1: error: found an orvane scene, expected an HTR file [htr-other-kind]\n"
            "  \"orvane scene\" shows it.\n"
            "walk.glb: 1 error\n");
  EXPECT_THAT(Orvane({"check", "--for", "import", "walk.glb"}).output,
              StartsWith("walk.glb: error: The file is an orvane scene, not an HTR file (line 1, "
                         "column 1). \"orvane scene\" shows it. [htr-other-kind]\n"));
  EXPECT_THAT(Orvane({"map", "lint", "walk.trc"}).output,
              StartsWith("walk.trc:1:1: error: found a TRC file, expected a mapping "
                         "[mnm-other-kind]\n"));
}

TEST_F(OtherKindTest, IsTheOneFindingOfEveryVerb) {
  const std::string motion = "walk.glb: error: The file is an orvane scene, not an HTR file";
  ExpectOneFinding({"info", "walk.glb"}, motion);
  ExpectOneFinding({"import", "walk.glb", "-o", "other.glb"}, motion);
  ExpectOneFinding({"compare", "walk.glb", "walk.htr"}, motion);
  const std::string markers = ": error: The file is ";
  ExpectOneFinding({"convert", "walk.glb", "-o", "other.bvk"},
                   "walk.glb" + markers + "an orvane scene, not a TRC file");
  ExpectOneFinding({"convert", "walk.bvk", "-o", "other.bvk"},
                   "walk.bvk" + markers + "a BVK file, not a TRC file");
  ExpectOneFinding({"import", "walk.htr", "--as", "trc", "-o", "other.glb"},
                   "walk.htr" + markers + "an HTR file, not a TRC file");
}

TEST_F(OtherKindTest, AMappingIsTheOneFindingOfEveryVerb) {
  for (const char* const name : {"map.trc", "map.htr", "map.mnm"}) Write(name, "LFHD\tHead\t\r\n");
  Write("picks.tsv", "LFHD\tHead\n");
  const std::string markers = "map.trc: error: The file is a mapping, not a TRC file";
  ExpectOneFinding({"info", "map.trc"}, markers);
  ExpectOneFinding({"import", "map.trc", "-o", "other.glb"}, markers);
  ExpectOneFinding({"convert", "map.trc", "-o", "other.bvk"}, markers);
  ExpectOneFinding({"map", "create", "map.trc", "-o", "other.mnm", "--picks", "picks.tsv"},
                   markers);
  const std::string motion = "map.htr: error: The file is a mapping, not an HTR file";
  ExpectOneFinding({"info", "map.htr"}, motion);
  ExpectOneFinding({"import", "map.htr", "-o", "other.glb"}, motion);
  ExpectOneFinding({"compare", "map.htr", "walk.htr"}, motion);
  ExpectOneFinding({"info", "map.mnm"}, "map.mnm: error: The file is a mapping, not an HTR file");
}

TEST_F(OtherKindTest, ACaptureInThePlaceOfAMappingIsTheOneFinding) {
  const ProgramResult linted = Orvane({"map", "lint", "walk.trc", "walk.trc"});
  EXPECT_THAT(linted.output, HasSubstr("found a TRC file, expected a mapping"));
  EXPECT_THAT(linted.output, Not(HasSubstr("mnm-marker-unmapped")));
  const ProgramResult converted =
      Orvane({"convert", "walk.trc", "-o", "other.bvk", "--mapping", "walk.htr"});
  EXPECT_THAT(converted.error, StartsWith("orvane: walk.htr: error: The file is an HTR file, not "
                                          "a mapping (line 1, column 1). Nothing is converted"));
  EXPECT_THAT(converted.error, Not(HasSubstr("mnm-marker-unmapped")));
}

TEST_F(OtherKindTest, OfACaptureIsNamedBeforeItsRefusal) {
  Write("map.mnm", "LFHD\tHead\n");
  const ProgramResult result = Orvane({"map", "lint", "map.mnm", "walk.bvk"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              StartsWith("orvane: walk.bvk: The file is a BVK file, not a TRC file\n"));
}

TEST_F(OtherKindTest, IsNamedThoughTheReaderWouldTakeAnotherFile) {
  EXPECT_THAT(Orvane({"check", "walk.gltf"}).output,
              StartsWith("walk.gltf:1:1: error: found an orvane scene, expected an HTR file "
                         "[htr-other-kind]\n"));
  Write("walk.trc.gz", "\x1F\x8B\x08");
  const std::string packed = "walk.trc.gz: error: The file is a gzip archive, not an HTR file";
  ExpectOneFinding({"info", "walk.trc.gz"}, packed);
  ExpectOneFinding({"import", "walk.trc.gz", "-o", "other.glb"}, packed);
  ExpectOneFinding({"compare", "walk.trc.gz", "walk.htr"}, packed);
}

TEST_F(OtherKindTest, IsRefusedBeforeThePluginIsAsked) {
  for (const char* const name : {"walk.glb", "walk.gltf", "walk.bvk"}) {
    const ProgramResult result = Orvane({"import", name, "-o", "other.glb"});
    EXPECT_EQ(result.status, 1) << name;
    EXPECT_THAT(result.error,
                testing::EndsWith(std::string("orvane: ") + name +
                                  ": nothing was written because of htr-other-kind\n"))
        << name;
  }
}

TEST_F(OtherKindTest, IsNamedWithAdviceThatHoldsForEveryVerb) {
  Write("walk.txt", Read("walk.trc"));
  EXPECT_THAT(Orvane({"compare", "walk.txt", "walk.htr"}).error,
              HasSubstr("\"orvane import\" and \"orvane info\" take it, by a name that ends in "
                        ".trc or with \"--as trc\"."));
  for (const char* const verb : {"info", "check"}) {
    EXPECT_NE(Orvane({verb, "walk.txt", "--as", "trc"}).output, "") << verb;
  }
  EXPECT_EQ(Orvane({"import", "walk.txt", "--as", "trc", "-o", "other.glb"}).status, 0);
}

TEST_F(OtherKindTest, OfAFolderIsToldUnderTheNameThatTheUserGave) {
  std::filesystem::create_directory(folder_.File("takes"));
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"import", "takes", "-o", "other.glb"},
        {"map", "create", "takes", "-o", "map.mnm", "--picks", "picks"},
        {"scene", "takes"}}) {
    const ProgramResult result = Orvane(arguments);
    EXPECT_EQ(result.status, 3) << arguments.front();
    EXPECT_EQ(result.error, "orvane: takes: Is a directory\n") << arguments.front();
  }
}

}  // namespace
