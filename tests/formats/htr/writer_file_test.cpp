#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "formats/htr/writer.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace orvane {
namespace {

class WriteFile : public ::testing::Test {
 protected:
  // Writes a document of segments with these names, in this order.
  std::string Write(const std::vector<std::string>& names, const std::string& file = "walk.htr") {
    HtrDocument document;
    for (std::size_t index = 0; index < names.size(); ++index) {
      // A document takes no second segment of a name, but one may be given it later.
      document.AddSegment(HtrSegment(std::to_string(index)));
    }
    std::size_t index = 0;
    for (HtrSegment& segment : document.segments()) segment.SetName(names[index++]);
    return WriteHtrFile(document, folder_.File(file));
  }

  std::vector<std::string> Files() const { return test::NamesIn(folder_.Path()); }

  test::TemporaryFolder folder_;
};

using Names = std::vector<std::string>;

TEST_F(WriteFile, WritesTheBytesThatThePrinterMakes) {
  HtrDocument document;
  for (int index = 0; index < 2000; ++index) {
    document.AddSegment(HtrSegment("s" + std::to_string(index)));
  }
  std::string printed;
  PrintHtr(document, [&printed](std::string_view piece) { printed += piece; });
  EXPECT_EQ(WriteHtrFile(document, folder_.File("walk.htr")), "");
  EXPECT_EQ(test::ReadFile(folder_.File("walk.htr")), printed);
}

TEST_F(WriteFile, RefusesADocumentWithoutSegments) {
  EXPECT_EQ(Write({}), "No segments to write");
  EXPECT_EQ(Files(), Names{});
}

struct DuplicateCase {
  Names names;
  std::string reported;
};

TEST_F(WriteFile, RefusesTwoSegmentsOfOneName) {
  const std::vector<DuplicateCase> cases = {
      {{"Hips", "Hips"}, "Hips"},
      {{"Hips", "Spine", "Leg", "Spine"}, "Spine"},
      {{"a", "b", "c", "c"}, "c"},
      // The first segment that shares its name counts, not the first pair that is complete.
      {{"a", "b", "b", "a"}, "a"},
      {{"x", "a", "b", "b", "b", "a"}, "a"},
      {{"", "a", ""}, ""},
  };
  for (const DuplicateCase& c : cases) {
    EXPECT_EQ(Write(c.names), "The scene hierarchy has duplicate segment names: " + c.reported);
    EXPECT_EQ(Files(), Names{});
  }
}

TEST_F(WriteFile, TakesNamesThatDifferInCase) { EXPECT_EQ(Write({"Hips", "hips"}), ""); }

TEST_F(WriteFile, ChecksAHundredThousandNamesInLinearTime) {
  Names names;
  for (int index = 0; index < 100'000; ++index) names.push_back("s" + std::to_string(index));
  names.push_back("s99999");
  EXPECT_EQ(Write(names), "The scene hierarchy has duplicate segment names: s99999");
}

struct NameCase {
  std::string asked;
  std::string made;
};

TEST_F(WriteFile, AddsTheExtensionByTheRuleOfTheReader) {
  const std::vector<NameCase> cases = {
      {"walk.htr", "walk.htr"},
      {"walk", "walk.htr"},
      {"walk.HTR", "walk.HTR"},
      {"walk.txt", "walk.txt"},
      {"walk.ab", "walk.ab.htr"},
      {"walk.html", "walk.html.htr"},
      {"w.htr.gz", "w.htr.gz.htr"},
      {"a.b", "a.b.htr"},
      {"l\xc3\xa4uft", "l\xc3\xa4uft.htr"},
  };
  for (const NameCase& c : cases) {
    EXPECT_EQ(Write({"Hips"}, c.asked), "");
    EXPECT_EQ(Files(), Names{c.made}) << c.asked;
    std::filesystem::remove(platform::PathOf(folder_.File(c.made)));
  }
}

TEST_F(WriteFile, EmptiesTheFileThatIsThere) {
  folder_.Write("walk.htr", std::string(100'000, 'x'));
  EXPECT_EQ(Write({"Hips"}), "");
  const std::string bytes = test::ReadFile(folder_.File("walk.htr"));
  EXPECT_EQ(bytes.substr(0, 12), "# Orvane HTR");
  EXPECT_EQ(bytes.find('x', bytes.find("[EndOfFile]")), std::string::npos);
}

TEST_F(WriteFile, ChecksTheSegmentsBeforeItTouchesTheFile) {
  folder_.Write("walk.htr", "kept");
  EXPECT_EQ(Write({}), "No segments to write");
  EXPECT_NE(Write({"a", "a"}), "");
  EXPECT_EQ(test::ReadFile(folder_.File("walk.htr")), "kept");
  EXPECT_EQ(Write({}, "no/such/folder.htr"), "No segments to write");
  EXPECT_EQ(Write({"a", "a"}, "no/such/folder.htr"),
            "The scene hierarchy has duplicate segment names: a");
}

TEST_F(WriteFile, FailsWhereNoFileCanBe) {
  std::filesystem::create_directory(folder_.Path() / "folder.htr");
  EXPECT_EQ(Write({"Hips"}, "no/such/folder.htr"), "The file could not be opened");
  EXPECT_EQ(Write({"Hips"}, "folder.htr"), "The file could not be opened");
}

TEST_F(WriteFile, FailsForANameThatIsTooLong) {
  const std::string name(10'000, 'x');
  if (std::ofstream(folder_.File(name))) GTEST_SKIP() << "this system shortens names";
  EXPECT_EQ(Write({"Hips"}, name), "The file could not be opened");
}

}  // namespace
}  // namespace orvane
