#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/host/application/idle_callbacks.h"
#include "tests/module/utility_fixture.h"
#include "tests/support/files.h"

namespace test {
namespace {

using testing::ElementsAre;

constexpr int kDescription = 1151;
constexpr int kBack = 1152;
constexpr int kSkip = 1153;
constexpr int kAbort = 1154;

constexpr WireColor kMarkerColor = 204U | 51U << 8U | 51U << 16U;
constexpr WireColor kPickedColor = 25U | 25U << 8U | 204U << 16U;

// The codes of all markers in their order, those of one step side by side.
const std::vector<std::string> kCodes = {
    "LFHD", "LBHD", "RBHD", "RFHD",  "C7",    "CLAV",  "STRN",  "LSHO",  "LELB",
    "LILB", "LWRA", "LWRB", "LFIN",  "RSHO",  "RELB",  "RILB",  "RWRA",  "RWRB",
    "RFIN", "T10",  "SACR", "LFWT",  "LBWT",  "RBWT",  "RFWT",  "LKNE",  "LKNI",
    "LANK", "LHEL", "LMT5", "LMTI",  "LTOE",  "RKNE",  "RKNI",  "RANK",  "RHEL",
    "RMT5", "RMTI", "RTOE", "LPRPB", "LPRPM", "LPRPT", "RPRPB", "RPRPM", "RPRPT"};

const std::set<std::string> kOptional = {"LILB",  "RILB",  "SACR",  "LKNI",  "LHEL",
                                         "LMTI",  "RKNI",  "RHEL",  "RMTI",  "LPRPB",
                                         "LPRPM", "LPRPT", "RPRPB", "RPRPM", "RPRPT"};

// A cloud with an object for every marker, named after it in small letters, and a user who picks it
// whenever it is asked for, unless the test has planned something else.
class MappingCreatorTest : public UtilityTest {
 protected:
  void SetUp() override {
    UtilityTest::SetUp();
    desk_.Choose(platform::kMessageBoxNo);
    for (const std::string& code : kCodes) AddObject(code);
    for (const char* code : {"LWRE", "LWRI", "RWRE", "RWRI"}) AddObject(code);
    desk_.Act([this] {
      Act();
      return true;
    });
    desk_.ChooseFiles([this](const host::ShownFileDialog& dialog) {
      ++file_dialogs_;
      if (watch_file_dialog_) watch_file_dialog_(dialog);
      return choice_;
    });
    choice_.paths = {folder_.File("made.mnm")};
    Open();
  }

  void AddObject(const std::string& code) {
    Interface& host = application_.plugin_interface();
    INode* const node = host.CreateObjectNode(
        static_cast<Object*>(host.CreateInstance(kGeometricObjectSuperClass, kSphereClass)));
    node->SetName(NameOf(code).c_str());
    node->SetWireColor(kMarkerColor);
  }

  static std::string NameOf(std::string code) {
    std::transform(code.begin(), code.end(), code.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return code;
  }

  host::ScriptedDialog& Creator() {
    host::ScriptedDialog* const dialog = desk_.desktop().ShownDialog(117);
    if (dialog == nullptr) throw host::ScriptError("The creator is not open");
    return *dialog;
  }

  // The code that the creator asks for, which its description ends with.
  std::string AskedCode() {
    const std::string text = Creator().Text(kDescription);
    const std::size_t open = text.rfind('(');
    return text.substr(open + 1, text.size() - open - 2);
  }

  void Pick(const std::string& code) { application_.picking().Click(&Node(NameOf(code))); }

  // Does `action` the first time that `code` is asked for, instead of picking.
  void Plan(const std::string& code, std::function<void()> action) {
    plans_.emplace_back(code, std::move(action));
  }

  // Does what is planned for the marker that is asked for, or picks it.
  void Act() {
    const std::string code = AskedCode();
    asked_.push_back(code);
    const auto plan = std::find_if(plans_.begin(), plans_.end(), [&code](const auto& candidate) {
      return candidate.first == code;
    });
    if (plan == plans_.end()) return Pick(code);
    const std::function<void()> action = plan->second;
    plans_.erase(plan);
    action();
  }

  // Lets the converter load a mapping of these bytes, by a conversion that the user cancels.
  void LoadMapping(const std::string& bytes) {
    panel_.reset();
    Store("MNMPath", platform::RegistryType::kString, Write("set.mnm", bytes));
    Open();
    const host::FileChoice choice = std::exchange(choice_, {});
    Page().Click(kConvert);
    choice_ = choice;
    file_dialogs_ = 0;
  }

  void Create() { Page().Click(kCreateMapping); }

  std::string Made() { return ReadTextFile(folder_.File("made.mnm")); }

  // A mapping file that pairs every code with its own object.
  static std::string FileOf(const std::vector<std::string>& codes) {
    std::string bytes;
    for (const std::string& code : codes) bytes += code + "\t" + NameOf(code) + "\t\n";
    return bytes;
  }

  std::vector<std::string> ObjectsIn(WireColor color) {
    std::vector<std::string> names;
    for (const host::Node* node : application_.scene().Root().Children()) {
      if (node->WireColor() == color) names.push_back(node->Name());
    }
    return names;
  }

  // Nothing of the creation is left: dialog, pick mode, colours.
  void ExpectNothingLeft() {
    EXPECT_EQ(desk_.desktop().ShownDialog(117), nullptr);
    EXPECT_FALSE(application_.picking().IsActive());
    EXPECT_TRUE(application_.callbacks().ExitCallbacks().empty());
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre());
  }

  // The same, and nothing was written either.
  void ExpectAborted() {
    ExpectNothingLeft();
    EXPECT_EQ(file_dialogs_, 0);
    EXPECT_FALSE(std::filesystem::exists(folder_.File("made.mnm")));
  }

  // The mapping holds nothing: the next file that is made has its own entries only.
  void ExpectMappingIsEmpty() {
    plans_.clear();
    choice_ = {{folder_.File("next.mnm")}};
    Create();
    EXPECT_EQ(ReadTextFile(folder_.File("next.mnm")), FileOf(kCodes));
  }

  std::vector<std::string> asked_;
  std::vector<std::pair<std::string, std::function<void()>>> plans_;
  host::FileChoice choice_;
  std::function<void(const host::ShownFileDialog&)> watch_file_dialog_;
  int file_dialogs_ = 0;
};

// --- The way through all steps ---

TEST_F(MappingCreatorTest, AsksForEveryMarkerAndWritesTheFile) {
  Create();
  EXPECT_EQ(asked_, kCodes);
  EXPECT_EQ(Made(), FileOf(kCodes));
  ExpectNothingLeft();
  EXPECT_EQ(Page().Text(kMappingFile), folder_.File("made.mnm"));
  panel_->Close();
  EXPECT_EQ(Stored("MNMPath"), folder_.File("made.mnm"));
}

TEST_F(MappingCreatorTest, AsksAboutTheWristsAndTellsItsSuccess) {
  Create();
  EXPECT_EQ(desk_.Messages(),
            "Pick optional markers?: Are you using a left wrist stick?\n"
            "Pick optional markers?: Are you using a right wrist stick?\n"
            "MNM File Creation Status: MNM File Creation Successful\n");
  EXPECT_EQ(desk_.desktop().Messages()[0].style, platform::MessageBoxStyle::kYesNo);
  EXPECT_EQ(desk_.desktop().Messages()[1].style, platform::MessageBoxStyle::kYesNo);
}

TEST_F(MappingCreatorTest, AsksForTheEndsOfTheSticksInstead) {
  desk_.Choose(platform::kMessageBoxYes);
  Create();
  std::vector<std::string> codes = kCodes;
  codes.at(10) = "LWRE";
  codes.at(11) = "LWRI";
  codes.at(16) = "RWRE";
  codes.at(17) = "RWRI";
  EXPECT_EQ(asked_, codes);
  EXPECT_EQ(Made(), FileOf(codes));
}

TEST_F(MappingCreatorTest, ColoursWhatWasPickedAndRedraws) {
  Plan("LBHD", [this] {
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre("lfhd"));
    EXPECT_EQ(application_.scene().RedrawCount(), 1U);
    Pick("LBHD");
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre("lfhd")) << "when the pick has ended";
  });
  Create();
  EXPECT_EQ(application_.scene().RedrawCount(), kCodes.size() + 1);
}

TEST_F(MappingCreatorTest, LetsOptionalMarkersBeSkippedAndNoOthers) {
  std::vector<std::string> needed;
  for (const std::string& code : kCodes) {
    const bool optional = kOptional.count(code) > 0;
    if (!optional) needed.push_back(code);
    Plan(code, [this, code, optional] {
      EXPECT_EQ(Creator().IsEnabled(kSkip), optional) << code;
      EXPECT_EQ(Creator().IsEnabled(kBack), code != "LFHD") << code;
      EXPECT_TRUE(Creator().IsEnabled(kAbort)) << code;
      if (optional) return Creator().Click(kSkip);
      Pick(code);
    });
  }
  Create();
  EXPECT_EQ(asked_, kCodes);
  EXPECT_EQ(Made(), FileOf(needed));
}

TEST_F(MappingCreatorTest, DescribesTheMarker) {
  Plan("LWRB", [this] {
    EXPECT_EQ(Creator().Title(), "MNM Creator / Marker Selection");
    EXPECT_EQ(Creator().Owner(), application_.main_window());
    EXPECT_EQ(Creator().Text(kDescription), "Left wrist outer (near pinky) marker (LWRB)");
    Pick("LWRB");
  });
  Create();
}

// --- Back ---

TEST_F(MappingCreatorTest, GoesBackToTheStepBefore) {
  Plan("RBHD", [this] { Creator().Click(kBack); });
  Plan("RBHD", [this] {
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre("lfhd", "lbhd"));
    Pick("RBHD");
  });
  Create();
  const std::vector<std::string> begin(asked_.begin(), asked_.begin() + 6);
  EXPECT_THAT(begin, ElementsAre("LFHD", "LBHD", "RBHD", "LBHD", "RBHD", "RFHD"));
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, RestoresTheColourOfWhatItTakesBack) {
  Plan("LBHD", [this] { Creator().Click(kBack); });
  Plan("LFHD", [this] { Pick("LFHD"); });
  Plan("LFHD", [this] {
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre());
    EXPECT_EQ(application_.scene().RedrawCount(), 2U);
    EXPECT_FALSE(Creator().IsEnabled(kBack)) << "this is the first step";
    Pick("LFHD");
  });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, GoingBackFromTheFirstOfTwoMarkersAsksForTheSecondFirst) {
  Plan("LWRA", [this] { Creator().Click(kBack); });
  Create();
  const std::vector<std::string> part(asked_.begin() + 9, asked_.begin() + 16);
  EXPECT_THAT(part, ElementsAre("LILB", "LWRA", "LWRB", "LILB", "LWRA", "LWRB", "LFIN"));
  // The entry of LILB was taken back; the first pick of LWRB stays.
  EXPECT_NE(Made().find("LELB\tlelb\t\nLWRB\tlwrb\t\nLILB\tlilb\t\nLWRA\tlwra\t\nLWRB\tlwrb\t\n"),
            std::string::npos);
}

TEST_F(MappingCreatorTest, GoesBackFurtherFromBothOfTwoMarkers) {
  Plan("LWRA", [this] { Creator().Click(kBack); });
  Plan("LWRB", [this] { Creator().Click(kBack); });
  Create();
  const std::vector<std::string> part(asked_.begin() + 10, asked_.begin() + 15);
  EXPECT_THAT(part, ElementsAre("LWRA", "LWRB", "LSHO", "LELB", "LILB"));
}

TEST_F(MappingCreatorTest, TakesBackNothingThatIsNotThere) {
  // Two steps back, with one entry: the second time the list is empty.
  Plan("LBHD", [this] { application_.picking().Leave(); });
  Plan("RBHD", [this] { Creator().Click(kBack); });
  Plan("LBHD", [this] { Creator().Click(kBack); });
  Plan("LFHD", [this] { application_.picking().Leave(); });
  Plan("LFHD", [this] { Pick("LFHD"); });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, AButtonGoesBeforeAPickOfTheSameMoment) {
  Plan("RBHD", [this] {
    Pick("RBHD");
    Creator().Click(kBack);
  });
  Plan("LILB", [this] {
    Pick("LILB");
    Creator().Click(kSkip);
  });
  Create();
  const std::vector<std::string> begin(asked_.begin(), asked_.begin() + 6);
  EXPECT_THAT(begin, ElementsAre("LFHD", "LBHD", "RBHD", "LBHD", "RBHD", "RFHD"));
  std::vector<std::string> codes = kCodes;
  codes.erase(std::find(codes.begin(), codes.end(), "LILB"));
  EXPECT_EQ(Made(), FileOf(codes));
  ExpectNothingLeft();
}

// --- Picks that end otherwise ---

TEST_F(MappingCreatorTest, AsksAgainAfterARightClick) {
  Plan("LBHD", [this] { application_.picking().RightClick(); });
  Create();
  const std::vector<std::string> begin(asked_.begin(), asked_.begin() + 4);
  EXPECT_THAT(begin, ElementsAre("LFHD", "LBHD", "LBHD", "RBHD"));
  EXPECT_EQ(Made(), FileOf(kCodes));
}

struct RightClickCase {
  bool first;
  bool second;
};

TEST_F(MappingCreatorTest, ARightClickInAStepOfTwoMarkersAsksForBothOnceMore) {
  for (const RightClickCase& c :
       {RightClickCase{true, false}, RightClickCase{false, true}, RightClickCase{true, true}}) {
    asked_.clear();
    choice_.agrees_to_replace = true;
    if (c.first) Plan("RWRA", [this] { application_.picking().RightClick(); });
    if (c.second) Plan("RWRB", [this] { application_.picking().RightClick(); });
    Create();
    const std::vector<std::string> part(asked_.begin() + 16, asked_.begin() + 21);
    EXPECT_THAT(part, ElementsAre("RWRA", "RWRB", "RWRA", "RWRB", "RFIN")) << c.first << c.second;
  }
}

TEST_F(MappingCreatorTest, GoesOnWithoutAnEntryWhenTheHostLeavesThePickMode) {
  Plan("C7", [this] { application_.picking().Leave(); });
  Plan("LWRA", [this] { application_.picking().Leave(); });
  Create();
  EXPECT_EQ(asked_, kCodes);
  std::vector<std::string> codes = kCodes;
  codes.erase(codes.begin() + 10);
  codes.erase(codes.begin() + 4);
  EXPECT_EQ(Made(), FileOf(codes));
}

TEST_F(MappingCreatorTest, WaitsWhileNothingIsPicked) {
  Plan("LFHD", [this] { EXPECT_FALSE(application_.picking().Click(nullptr)); });
  Plan("LFHD", [] {});
  Create();
  const std::vector<std::string> begin(asked_.begin(), asked_.begin() + 4);
  EXPECT_THAT(begin, ElementsAre("LFHD", "LFHD", "LFHD", "LBHD"));
}

TEST_F(MappingCreatorTest, TakesTheSameObjectForSeveralMarkers) {
  Plan("LBHD", [this] { Pick("LFHD"); });
  Create();
  EXPECT_EQ(Made().substr(0, 26), "LFHD\tlfhd\t\nLBHD\tlfhd\t\nRBHD");
}

TEST_F(MappingCreatorTest, WritesTheNameThatTheObjectHadWhenItWasPicked) {
  Plan("LBHD", [this] {
    Node("lfhd").SetName("renamed");
    Pick("LBHD");
  });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, DoesNotMindAnObjectThatIsDeletedAfterwards) {
  Plan("LBHD", [this] {
    application_.scene().DeleteNode(&Node("lfhd"));
    Creator().Click(kBack);
  });
  Plan("LFHD", [this] { Pick("LFHD"); });
  Plan("LFHD", [this] { Pick("C7"); });
  Plan("RBHD", [this] {
    application_.scene().DeleteNode(&Node("lbhd"));
    Creator().Click(kAbort);
  });
  Create();
  ExpectAborted();
}

// --- Abort ---

TEST_F(MappingCreatorTest, AbortAtAnyMarkerRestoresEverything) {
  for (const std::string& code : kCodes) {
    SCOPED_TRACE(code);
    asked_.clear();
    Plan(code, [this] { Creator().Click(kAbort); });
    Create();
    ExpectAborted();
    EXPECT_EQ(asked_.back(), code) << "nothing is asked after it";
  }
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, ClosingTheDialogAborts) {
  Plan("LBHD", [this] { Creator().PressEscape(); });
  Create();
  ExpectAborted();
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
}

TEST_F(MappingCreatorTest, AbortCountsMoreThanAnotherButton) {
  Plan("LILB", [this] {
    Creator().Click(kSkip);
    Creator().Click(kAbort);
  });
  Create();
  ExpectAborted();
}

TEST_F(MappingCreatorTest, AbortsWhenThePickModeIsNotEntered) {
  application_.callbacks().RefusePickModes();
  Create();
  ExpectAborted();
  EXPECT_TRUE(asked_.empty());
}

TEST_F(MappingCreatorTest, AbortsWhenTheHostExits) {
  for (const char* code : {"LFHD", "LWRA", "LWRB", "RPRPT"}) {
    Plan(code, [this] { application_.Exit(); });
    Create();
    ExpectAborted();
  }
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, AbortsWhenTheUserHasNothingLeftToDo) {
  int acts = 0;
  desk_.Act([&acts] { return ++acts < 5; });
  try {
    Create();
    ADD_FAILURE() << "the script has not failed";
  } catch (const host::ScriptError& error) {
    EXPECT_STREQ(error.what(), "The plug-in waits, and its user has nothing left to do.");
  }
  EXPECT_EQ(acts, 5);
  EXPECT_TRUE(application_.HasExited());
  ExpectAborted();
  script_fails_ = true;
}

TEST_F(MappingCreatorTest, ClosingThePanelAbortsAtOnce) {
  for (const std::string& code : kCodes) {
    SCOPED_TRACE(code);
    Plan(code, [this] {
      panel_->Close();
      ExpectAborted();
    });
    Create();
    ExpectAborted();
    panel_->Open();
  }
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, DeletingThePanelAbortsAtOnce) {
  for (const std::string& code : kCodes) {
    SCOPED_TRACE(code);
    Plan(code, [this] {
      panel_->Delete();
      ExpectAborted();
    });
    Create();
    ExpectAborted();
    Open();
  }
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, ThePanelMayBeOpenedAgainBeforeTheAbortIsNoticed) {
  Plan("LBHD", [this] {
    panel_->Close();
    panel_->Open();
  });
  Create();
  ExpectAborted();
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, ClosingThePanelWhileAFileIsChosenWritesNothing) {
  watch_file_dialog_ = [this](const host::ShownFileDialog&) { panel_->Delete(); };
  Create();
  ExpectNothingLeft();
  EXPECT_FALSE(std::filesystem::exists(folder_.File("made.mnm")));
}

TEST_F(MappingCreatorTest, ThePanelMayBeDeletedWhileItTellsItsSuccess) {
  std::size_t redraws = 0;
  desk_.WhenTold([&] {
    panel_->Delete();
    redraws = application_.scene().RedrawCount();
  });
  Create();
  ExpectNothingLeft();
  EXPECT_EQ(Made(), FileOf(kCodes));
  EXPECT_EQ(application_.scene().RedrawCount(), redraws) << "the host is touched no more";
}

class OtherPickMode final : public IdlePickMode {};

TEST_F(MappingCreatorTest, ClosingThePanelLeavesAnyPickMode) {
  OtherPickMode other;
  application_.plugin_interface().SetPickMode(&other);
  panel_->Close();
  EXPECT_FALSE(application_.picking().IsActive());
}

TEST_F(MappingCreatorTest, OneCommandIsAtWorkAtATime) {
  LoadMapping("");
  Plan("LBHD", [this] {
    Page().Click(kCreateMapping);
    Page().Click(kConvert);
    Pick("LBHD");
  });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
  EXPECT_EQ(file_dialogs_, 1);
}

TEST_F(MappingCreatorTest, DoesNothingWithoutItsDialog) {
  desk_.desktop().RefuseDialog(117);
  Create();
  ExpectAborted();
  EXPECT_TRUE(asked_.empty());
}

// --- Saving ---

TEST_F(MappingCreatorTest, AsksWhereToSave) {
  watch_file_dialog_ = [this](const host::ShownFileDialog& dialog) {
    EXPECT_EQ(dialog.title, "Select Mapping File...");
    EXPECT_EQ(dialog.filter, "Marker Name Mapping Files (*.MNM)");
    EXPECT_EQ(desk_.desktop().ShownDialog(117), nullptr) << "the creator's dialog is closed";
  };
  Create();
  EXPECT_EQ(file_dialogs_, 1);
}

TEST_F(MappingCreatorTest, KeepsEntriesAndColoursWhenNoFileIsChosen) {
  choice_.paths.clear();
  Create();
  EXPECT_EQ(ObjectsIn(kPickedColor).size(), kCodes.size());
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
  choice_.paths = {folder_.File("made.mnm")};
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes) + FileOf(kCodes)) << "the entries of both times";
  ExpectNothingLeft();
}

TEST_F(MappingCreatorTest, KeepsEntriesAndColoursWhenTheFileCannotBeMade) {
  // What leads nowhere does not exist, and cannot be made either.
  std::error_code error;
  std::filesystem::create_symlink(folder_.File("no/such/file"), folder_.File("made.mnm"), error);
  if (error) GTEST_SKIP() << "there are no links to make: " << error.message();
  Create();
  EXPECT_EQ(desk_.desktop().Messages().back().text,
            "MNM File Creation Failed: Unable to open output file.");
  EXPECT_EQ(desk_.desktop().Messages().back().caption, "MNM File Creation Status");
  EXPECT_EQ(ObjectsIn(kPickedColor).size(), kCodes.size());
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
}

TEST_F(MappingCreatorTest, BeginsWithTheEntriesThatAConversionHasLoaded) {
  LoadMapping("HEAD\tHead1\t\n");
  Plan("LBHD", [this] { Creator().Click(kBack); });
  Create();
  EXPECT_EQ(Made(), "HEAD\tHead1\t\n" + FileOf(kCodes));
  EXPECT_EQ(Page().Text(kMappingFile), folder_.File("made.mnm"));
}

TEST_F(MappingCreatorTest, AbortEmptiesTheMappingOfWhatWasLoadedToo) {
  LoadMapping("HEAD\tHead1\t\n");
  Plan("LBHD", [this] { Creator().Click(kAbort); });
  Create();
  ExpectAborted();
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, GoingBackMayTakeAnEntryThatWasLoaded) {
  LoadMapping("HEAD\tHead1\t\n");
  Plan("LFHD", [this] { application_.picking().Leave(); });
  Plan("LBHD", [this] { Creator().Click(kBack); });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, ReplacesAFileWithConsent) {
  Write("made.mnm", "something else\n");
  choice_.agrees_to_replace = true;
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

}  // namespace
}  // namespace test
