#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// Conversions of more files than one batch of the plug-in takes.

namespace {

using test::ProgramResult;
using testing::EndsWith;
using testing::HasSubstr;

constexpr char kRefused[] = "The file is does not have a compatible \"(X/Y/Z)\" header state";

std::string Take(const std::string& x = "1") {
  return test::TrcText{.markers = {"Head1"}, .frames = {{x + "\t2\t3"}, {x + "\t2\t3"}}}.Text();
}

std::string BrokenTake() { return "a poem\n"; }

class ManyConversionsTest : public test::OrvaneTest {
 protected:
  ProgramResult Convert(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "convert");
    return Orvane(arguments);
  }

  void MakeFolder(const std::string& name) const {
    std::filesystem::create_directory(folder_.Path() / name);
  }
  std::vector<std::string> NamesOf(const std::string& folder) const {
    return test::NamesIn(folder_.Path() / folder);
  }
};

TEST_F(ManyConversionsTest, ConvertsTwelveHundredFilesOfWhichThirtyAreBroken) {
  MakeFolder("in");
  MakeFolder("out");
  std::vector<std::string> arguments = {"--output-dir", "out", "--jobs", "2"};
  std::string expected_errors =
      "orvane: in/10007.trc: error: in 30 files, first here: The first line needs tabs between "
      "fields, not blanks: \"a "
      "poem\" "
      "(line 1, column 1). The file is refused. [trc-tabs-missing]\n";
  for (int number = 0; number < 1200; ++number) {
    const std::string name = "in/" + std::to_string(10'000 + number) + ".trc";
    const bool is_broken = number % 40 == 7;
    Write(name, is_broken ? BrokenTake() : Take(std::to_string(number)));
    if (is_broken) expected_errors += "orvane: " + name + ": " + kRefused + "\n";
    arguments.push_back(name);
  }
  ProgramResult result = Convert(arguments);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, expected_errors);
  EXPECT_THAT(result.output, EndsWith("1170 of 1200 converted\n"));
  EXPECT_EQ(NamesOf("out").size(), 1171u);
  for (int number = 0; number < 1200; ++number) {
    if (number % 40 == 7) continue;
    const std::string output = Read("out/" + std::to_string(10'000 + number) + ".bvk");
    EXPECT_THAT(output, HasSubstr("\n1\t" + std::to_string(number) + ".000000\t-3.000000\t"));
  }

  // Outputs, order and log are the same whatever the number of processes.
  const std::string table = result.output;
  std::filesystem::last_write_time(folder_.Path() / "out/10000.bvk", {});
  result = Convert(arguments);
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.output, EndsWith("0 of 1200 converted\n"));
  EXPECT_EQ(NamesOf("out").size(), 1171u);
  EXPECT_EQ(std::filesystem::last_write_time(folder_.Path() / "out/10000.bvk"),
            std::filesystem::file_time_type());
  std::filesystem::remove_all(folder_.Path() / "out");
  MakeFolder("out");
  arguments[3] = "1";
  EXPECT_EQ(Convert(arguments).output, table);
}

TEST_F(ManyConversionsTest, MoreThanAThousandFilesAreSeveralBatches) {
  MakeFolder("in");
  std::vector<std::string> arguments = {"--jobs", "1", "--quiet"};
  for (int number = 10'000; number < 11'001; ++number) {
    const std::string name = "in/" + std::to_string(number) + ".trc";
    Write(name, Take());
    arguments.push_back(name);
  }
  EXPECT_EQ(Convert(arguments).status, 0);
  const std::string log = ReadText("in/ConvertBVKLog.txt");
  EXPECT_THAT(log, HasSubstr("Processing 1000 files...\n"));
  EXPECT_THAT(log, HasSubstr("Processing 1 files...\n"));
}

}  // namespace
