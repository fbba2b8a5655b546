#include "cli/view/workbench.h"

#include "cli/common/failure.h"
#include "tests/cli/orvane_test.h"
#include "tests/cli/view/page_takes.h"
#include "tests/support/environment_variable.h"

namespace {

using cli::FindWorkbench;
using cli::WorkbenchWriter;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const std::string kBefore = "<p>[]</p><script type=\"application/json\" id=\"embedded-takes\">";
const std::string kBehind = "</script>\n<script>run()</script>\n";

std::string PageWith(const std::vector<cli::EmbeddedTake>& takes) {
  WorkbenchWriter writer("page.html", kBefore + "[]" + kBehind);
  for (const cli::EmbeddedTake& take : takes) writer.Add(take);
  return writer.Finish();
}

TEST(WorkbenchWriterTest, LeavesAPageWithoutTakesAsItIs) {
  EXPECT_EQ(PageWith({}), kBefore + "[]" + kBehind);
}

TEST(WorkbenchWriterTest, ChangesNothingAroundTheTakes) {
  const std::string page = PageWith({{"walk.htr", "bytes"}});
  EXPECT_THAT(page, StartsWith(kBefore + "[{\"name\": \"walk.htr\", \"gzip\": \""));
  EXPECT_THAT(page, EndsWith("\"}]" + kBehind));
}

TEST(WorkbenchWriterTest, HandsOutTheBytesOfEachTake) {
  std::string every;
  for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(byte);
  std::string noise;  // longer than what is compressed at a time, and hard to compress
  unsigned state = 1;
  for (int count = 0; count < 300'000; ++count) {
    state = state * 1664525U + 1013904223U;
    noise += static_cast<char>(state >> 24U);
  }
  const std::vector<cli::EmbeddedTake> takes = {{"none.htr", ""},     {"one.htr", "1"},
                                                {"two.htr", "12"},    {"three.htr", "123"},
                                                {"every.trc", every}, {"noise.trc", noise}};
  std::vector<test::PageTake> expected;
  for (const cli::EmbeddedTake& take : takes) expected.push_back({take.name, take.bytes});
  EXPECT_EQ(test::TakesIn(PageWith(takes)), expected);
}

TEST(WorkbenchWriterTest, TheSameTakesMakeTheSamePage) {
  EXPECT_EQ(PageWith({{"walk.htr", "bytes"}}), PageWith({{"walk.htr", "bytes"}}));
}

class HostileNameTest : public testing::TestWithParam<std::string> {};

TEST_P(HostileNameTest, StaysAName) {
  const std::string page = PageWith({{GetParam(), "bytes"}, {"walk.htr", "more"}});
  EXPECT_THAT(test::TakesText(page), Not(HasSubstr("<")));
  EXPECT_THAT(test::TakesIn(page),
              ElementsAre(test::PageTake{GetParam(), "bytes"}, test::PageTake{"walk.htr", "more"}));
}

INSTANTIATE_TEST_SUITE_P(All, HostileNameTest,
                         testing::Values("</script><script>alert(1)</script>.htr",
                                         "</SCRIPT ><img src=x onerror=alert(1)>.htr",
                                         "<!--<script>.htr", "\"}];alert(1);//.htr",
                                         "\\u003c\\.htr", "\xe2\x80\xaertl.htr",
                                         "line\xe2\x80\xa8"
                                         "break\n\t\x01.htr",
                                         std::string(10'000, '<') + ".htr"));

TEST(WorkbenchWriterTest, ANameThatIsNoTextIsShownAsFarAsItIs) {
  const std::string page = PageWith({{"walk\xff.htr", "bytes"}});
  EXPECT_THAT(test::TakesIn(page), ElementsAre(test::PageTake{"walk\xef\xbf\xbd.htr", "bytes"}));
}

TEST(WorkbenchWriterTest, RefusesAFileThatIsNoSuchPage) {
  try {
    const WorkbenchWriter writer("other.html", "<html></html>");
    FAIL() << "it is taken";
  } catch (const cli::Failure& failure) {
    EXPECT_EQ(failure.status, cli::ExitStatus::kInputOutput);
    EXPECT_EQ(failure.complaints.at(0).subject, "other.html");
    EXPECT_EQ(failure.complaints.at(0).text, "is not the page that shows takes");
  }
}

class FindWorkbenchTest : public testing::Test {
 protected:
  // Makes an empty file, and the folders that it lies in.
  void Make(const std::string& name) const {
    std::filesystem::create_directories((folder_.Path() / name).parent_path());
    test::WriteFile(folder_.File(name), "");
  }

  std::string Found(const std::string& program) const {
    std::filesystem::create_directories(folder_.Path() / program);
    return test::Slashed(FindWorkbench(folder_.File(program)));
  }

  std::string File(const std::string& name) const { return test::Slashed(folder_.File(name)); }

  test::TemporaryFolder folder_;
  test::EnvironmentVariable unset_{"ORVANE_WORKBENCH", ""};
};

TEST_F(FindWorkbenchTest, BesideTheProgram) {
  Make("orvane-workbench.html");
  EXPECT_EQ(Found("."), File("orvane-workbench.html"));
}

TEST_F(FindWorkbenchTest, WherePackagesPutIt) {
  Make("usr/share/orvane/orvane-workbench.html");
  EXPECT_EQ(Found("usr/" ORVANE_PROGRAM_FOLDER), File("usr/share/orvane/orvane-workbench.html"));
}

TEST_F(FindWorkbenchTest, WhereItIsBuilt) {
  Make("build-web/orvane-workbench.html");
  EXPECT_EQ(Found("build/bin"), File("build-web/orvane-workbench.html"));
}

TEST_F(FindWorkbenchTest, WhereItsUserSays) {
  Make("orvane-workbench.html");
  const test::EnvironmentVariable asked("ORVANE_WORKBENCH", "mine.html");
  EXPECT_EQ(Found("."), "mine.html");
}

TEST_F(FindWorkbenchTest, TellsWhatToDoWhereThereIsNone) {
  try {
    (void)Found("build/bin");
    FAIL() << "it is found";
  } catch (const cli::Failure& failure) {
    EXPECT_EQ(failure.status, cli::ExitStatus::kInputOutput);
    EXPECT_EQ(failure.complaints.at(0).subject, "orvane-workbench.html");
    EXPECT_EQ(failure.complaints.at(0).text, "The page that shows takes is not there");
    EXPECT_EQ(failure.complaints.at(0).advice,
              "In the sources \"./dev web\" makes it; a package brings it along.");
  }
}

}  // namespace
