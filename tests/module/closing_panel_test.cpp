// Closing the utility panel, or deleting it, in the middle of any call that it makes of the host.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "plugin/resources/resource.h"
#include "tests/module/utility_fixture.h"
#include "tests/support/files.h"
#include "tests/support/hooked_interface.h"
#include "tests/support/trc_text.h"

namespace test {
namespace {

using platform::RegistryType;
using testing::IsEmpty;

enum class Ending { kClosed, kDeleted };

class ClosingPanelTest : public UtilityTest, public testing::WithParamInterface<Ending> {
 protected:
  void SetUp() override {
    UtilityTest::SetUp();
    host_.before = [this](const std::string& operation) {
      if (is_over_) late_calls_.push_back(operation);
    };
    host_.after = [this](const std::string& /*operation*/) {
      if (++calls_ == last_call_) EndPanel();
    };
  }

  void TearDown() override {
    utility_.reset();
    EXPECT_THAT(late_calls_, IsEmpty());
    UtilityTest::TearDown();
  }

  // Presses `button` of a new panel, which ends during call number `last_call` of the host; 0: it
  // does not by itself. Returns whether it has ended.
  bool Press(int button, int last_call) {
    is_over_ = false;
    last_call_ = 0;
    utility_ = module_->CreateUtility("OrvaneUtilities");
    utility_->BeginEditParams(&host_, nullptr);
    calls_ = 0;
    last_call_ = last_call;
    Page().Click(button);
    calls_at_end_ = calls_;
    const bool has_ended = is_over_;
    if (!has_ended) EndPanel();
    return has_ended;
  }

  // What the host and its user see of the panel ends here.
  void EndPanel() {
    last_call_ = 0;
    if (GetParam() == Ending::kClosed) {
      utility_->EndEditParams(&host_, nullptr);
    } else {
      utility_.reset();
    }
    is_over_ = true;
    EXPECT_FALSE(application_.progress().IsOpen());
    EXPECT_TRUE(application_.rollup_pages().Open().empty());
    messages_ = desk_.Messages();
  }

  void ExpectSilence() { EXPECT_EQ(desk_.Messages(), messages_); }

  HookedInterface host_{application_.plugin_interface()};
  std::unique_ptr<UtilityObj> utility_;
  int calls_ = 0;
  int calls_at_end_ = 0;
  int last_call_ = 0;
  bool is_over_ = false;
  std::vector<std::string> late_calls_;
  std::string messages_;  // those before the end
};

// --- Conversion ---

class ClosingConversionTest : public ClosingPanelTest {
 protected:
  void SetUp() override {
    ClosingPanelTest::SetUp();
    EmptyOutputs();
    Store("MNMPath", RegistryType::kString, Write("set.mnm", "HEAD\tHead1\t\n"));
    Store("OutputPath", RegistryType::kString, folder_.File("out"));
    const std::string take = TrcText{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}}.Text();
    for (const char* name : {"run.trc", "sit.trc", "walk.trc"})
      sources_.push_back(Write(name, take));
    chosen_ = {sources_.back()};
    desk_.ChooseFiles([this](const host::ShownFileDialog& dialog) {
      if (dialog.title == ends_at_) EndPanel();
      if (dialog.title == "Select Target BVK File...") return host::FileChoice{{"target"}};
      return host::FileChoice{chosen_};
    });
  }

  void EmptyOutputs() {
    std::filesystem::remove_all(folder_.File("out"));
    std::filesystem::create_directory(folder_.File("out"));
  }

  // The sources that the log calls done.
  std::vector<std::string> Done() {
    std::vector<std::string> done;
    const std::string path = folder_.File("out/ConvertBVKLog.txt");
    const std::string log = std::filesystem::exists(path) ? ReadTextFile(path) : "";
    for (const std::string& source : sources_) {
      if (log.find("file: " + source + " done.\n") != std::string::npos) done.push_back(source);
    }
    return done;
  }

  // The sources whose outputs are there.
  std::vector<std::string> Written() {
    std::vector<std::string> written;
    for (const std::string& source : sources_) {
      const auto stem = std::filesystem::path(source).stem().string();
      if (std::filesystem::exists(folder_.File("out/" + stem + ".bvk"))) written.push_back(source);
    }
    return written;
  }

  std::vector<std::string> sources_;
  std::vector<std::string> chosen_;
  std::string ends_at_;  // the dialog that the user leaves the panel from
};

TEST_P(ClosingConversionTest, EndsABatchDuringAnyCall) {
  Store("Batch", RegistryType::kBinary, FlagBytes(true));
  chosen_ = sources_;
  std::size_t most_done = 0;
  int call = 0;
  while (Press(kConvert, ++call)) {
    SCOPED_TRACE(call);
    EXPECT_EQ(Done(), Written());
    EXPECT_GE(Done().size(), most_done);
    most_done = Done().size();
    EmptyOutputs();
    ExpectSilence();
  }
  EXPECT_EQ(Done(), sources_);
  EXPECT_GT(most_done, 0U);
}

TEST_P(ClosingConversionTest, EndsOneFileDuringAnyCall) {
  Store("TRCName", RegistryType::kBinary, FlagBytes(false));
  int call = 0;
  while (Press(kConvert, ++call)) {
    SCOPED_TRACE(call);
    ExpectSilence();
    EmptyOutputs();
  }
  EXPECT_GT(call, 5);
  EXPECT_EQ(NamesIn(folder_.File("out")), (std::vector<std::string>{"target.bvk"}));
}

TEST_P(ClosingConversionTest, ConvertsNothingThatIsChosenTooLate) {
  Store("TRCName", RegistryType::kBinary, FlagBytes(false));
  for (const char* title : {"Select Source TRC Files...", "Select Target BVK File..."}) {
    SCOPED_TRACE(title);
    ends_at_ = title;
    EXPECT_TRUE(Press(kConvert, 0));
    ExpectSilence();
    EXPECT_THAT(NamesIn(folder_.File("out")), IsEmpty());
  }
}

TEST_P(ClosingConversionTest, EndsWhileTheUserReadsWhyAFileWasRefused) {
  Write("walk.trc", "a poem\n");
  desk_.WhenTold([this] { EndPanel(); });
  EXPECT_TRUE(Press(kConvert, 0));
  EXPECT_EQ(desk_.desktop().Messages().size(), 1U);
}

// --- The mapping creator ---

class ClosingCreatorTest : public ClosingPanelTest {
 protected:
  void SetUp() override {
    ClosingPanelTest::SetUp();
    Interface& host = application_.plugin_interface();
    node_ = host.CreateObjectNode(
        static_cast<Object*>(host.CreateInstance(kGeometricObjectSuperClass, kSphereClass)));
    desk_.Act([this] {
      Act();
      return true;
    });
    desk_.ChooseFiles([this](const host::ShownFileDialog&) {
      return host::FileChoice{{folder_.File("made.mnm")}};
    });
  }

  // Uses the button that is planned for this wait, or picks the object.
  void Act() {
    ++waits_;
    const auto button = buttons_.find(waits_);
    if (button == buttons_.end()) {
      application_.picking().Click(node_);
    } else {
      desk_.desktop().ShownDialog(IDD_MAPPING_CREATOR)->Click(button->second);
    }
  }

  // Closes the panel in the middle of each call, of those in between only of some because they are
  // alike. Returns how many calls there are.
  int CloseDuringCalls() {
    waits_ = 0;
    EXPECT_FALSE(Press(kCreateMapping, 0));
    const int last = calls_at_end_;
    for (int call = 1; call <= last; ++call) {
      if (call > 40 && call < last - 10 && call % 17 != 0) continue;
      SCOPED_TRACE(call);
      std::filesystem::remove(folder_.File("made.mnm"));
      waits_ = 0;
      EXPECT_TRUE(Press(kCreateMapping, call));
      ExpectNothingLeft();
      ExpectSilence();
    }
    return last;
  }

  void ExpectNothingLeft() {
    EXPECT_EQ(desk_.desktop().ShownDialog(IDD_MAPPING_CREATOR), nullptr);
    EXPECT_FALSE(application_.picking().IsActive());
    EXPECT_TRUE(application_.callbacks().ExitCallbacks().empty());
  }

  INode* node_ = nullptr;
  int waits_ = 0;
  std::map<int, int> buttons_;  // by the number of the wait, from 1
};

TEST_P(ClosingCreatorTest, EndsDuringAnyCall) { EXPECT_GT(CloseDuringCalls(), 45); }

TEST_P(ClosingCreatorTest, EndsDuringAnyCallOfGoingBackAndAborting) {
  constexpr int kBack = IDC_BACK;
  constexpr int kAbort = IDC_ABORT;
  buttons_ = {{3, kBack}, {6, kAbort}};
  EXPECT_GT(CloseDuringCalls(), 6);
  EXPECT_FALSE(std::filesystem::exists(folder_.File("made.mnm")));
}

TEST_P(ClosingCreatorTest, AsksNoSecondQuestion) {
  int questions = 0;
  desk_.WhenAsked([this, &questions] {
    ++questions;
    EndPanel();
  });
  EXPECT_TRUE(Press(kCreateMapping, 0));
  EXPECT_EQ(questions, 1);
  ExpectNothingLeft();
}

// --- Opening ---

TEST_P(ClosingPanelTest, APageThatWasBeingAddedGoesAgain) {
  utility_ = module_->CreateUtility("OrvaneUtilities");
  host_.after = [this](const std::string& operation) {
    if (operation != "AddRollupPage") return;
    host_.after = nullptr;
    GetParam() == Ending::kClosed ? utility_->EndEditParams(&host_, nullptr) : utility_.reset();
  };
  utility_->BeginEditParams(&host_, nullptr);
  EXPECT_TRUE(application_.rollup_pages().Open().empty());
}

// --- The other dialogs ---

TEST_P(ClosingPanelTest, ShowsNoDialogAfterTheCallThatItEndedIn) {
  for (const int button : {kBrowseMapping, kBrowseOutput}) {
    EXPECT_TRUE(Press(button, 1)) << button;
    ExpectSilence();
  }
}

const auto kEndings = testing::Values(Ending::kClosed, Ending::kDeleted);
const auto NameOf = [](const testing::TestParamInfo<Ending>& row) {
  return row.param == Ending::kClosed ? "Closed" : "Deleted";
};

INSTANTIATE_TEST_SUITE_P(Endings, ClosingPanelTest, kEndings, NameOf);
INSTANTIATE_TEST_SUITE_P(Endings, ClosingConversionTest, kEndings, NameOf);
INSTANTIATE_TEST_SUITE_P(Endings, ClosingCreatorTest, kEndings, NameOf);

}  // namespace
}  // namespace test
