#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/application/application.h"
#include "platform/module.h"
#include "plugin/resources/resource.h"
#include "plugin/utilities/mapping_creator.h"
#include "plugin/utilities/orvane_utilities.h"
#include "tests/support/desk.h"
#include "tests/support/failing_calls.h"
#include "tests/support/hooked_interface.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trc_text.h"

// The utility panel in a host whose calls throw.

namespace orvane {
namespace {

using platform::RegistryType;
using test::RunOutOfMemory;
using test::ThrowNumber;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPage = IDD_UTILITIES;
constexpr int kCreator = IDD_MAPPING_CREATOR;
constexpr int kBrowseMapping = IDC_BROWSE_MAPPING;
constexpr int kBrowseOutput = IDC_BROWSE_OUTPUT;
constexpr int kConvert = IDC_CONVERT;
constexpr int kFilter = IDC_FILTER;
constexpr int kCreateMapping = IDC_CREATE_MAPPING;
constexpr char kKey[] = "Software\\Orvane\\OrvaneFileIO\\Skelder\\ConvertBVK";

constexpr WireColor kMarkerColor = 0x3333CC;

class ThrowingHostTest : public testing::Test {
 protected:
  void TearDown() override {
    panel_.reset();
    desk_.desktop().RethrowFailure();
    EXPECT_THAT(application_.scene().Misuse().Messages(), IsEmpty());
    EXPECT_THAT(application_.callbacks().ExitCallbacks(), IsEmpty());
    EXPECT_FALSE(application_.picking().IsActive());
  }

  void Create() {
    panel_ =
        std::make_unique<OrvaneUtilities>(messages_, strings_, pick_, platform::ModuleHandle());
  }
  void Open() {
    if (panel_ == nullptr) Create();
    panel_->BeginEditParams(&host_, nullptr);
  }
  void Close() { panel_->EndEditParams(&host_, nullptr); }
  host::ScriptedDialog& Page() { return *desk_.desktop().ShownDialog(kPage); }
  std::size_t OpenPages() { return application_.rollup_pages().Open().size(); }
  // What is stored of the setting that the tests change; nothing before the first time.
  std::string StoredFilter() {
    const auto stored = desk_.settings().FindValue(kKey, "Filter");
    return stored ? stored->bytes : "";
  }
  void Store(const std::string& name, RegistryType type, const std::string& bytes) {
    desk_.settings().StoreValue(kKey, name, {type, bytes});
  }

  // The messages since the last time.
  std::vector<std::string> NewMessages() {
    std::vector<std::string> messages;
    const std::vector<host::UserMessage>& all = desk_.desktop().Messages();
    for (; told_ < all.size(); ++told_) {
      if (all[told_].style != platform::MessageBoxStyle::kOk) continue;
      messages.push_back(all[told_].caption + ": " + all[told_].text);
    }
    return messages;
  }

  test::TemporaryFolder folder_;
  test::Desk desk_;
  host::Application application_;
  test::HookedInterface host_{application_.plugin_interface()};
  MessageSink messages_;
  StringTable strings_;
  PickControlNode pick_;
  std::unique_ptr<OrvaneUtilities> panel_;
  test::FailingCalls failing_{host_};
  std::size_t told_ = 0;
};

// --- Opening and closing ---

TEST_F(ThrowingHostTest, APanelThatCannotBeOpenedIsNotOpen) {
  failing_.At("AddRollupPage", ThrowNumber);
  Open();
  EXPECT_EQ(OpenPages(), 0U);
  failing_.End();
  std::vector<std::string> calls;
  host_.before = [&calls](const std::string& operation) { calls.push_back(operation); };
  Close();
  EXPECT_THAT(calls, IsEmpty());
  failing_.End();
  Open();
  EXPECT_EQ(OpenPages(), 1U);
}

TEST_F(ThrowingHostTest, ClosingDoesAllThatCanBeDone) {
  for (const char* operation : {"ClearPickMode", "DeleteRollupPage"}) {
    for (const bool is_deleted : {false, true}) {
      SCOPED_TRACE(operation);
      failing_.End();
      panel_.reset();
      Open();
      Page().Click(kFilter);
      const std::string stored = StoredFilter();
      failing_.At(operation, ThrowNumber);
      is_deleted ? panel_.reset() : Close();
      EXPECT_NE(StoredFilter(), stored);
      EXPECT_EQ(OpenPages(), 0U);
    }
  }
}

TEST_F(ThrowingHostTest, WithoutAnInterfaceNothingIsOpened) {
  Create();
  panel_->BeginEditParams(nullptr, nullptr);
  EXPECT_EQ(OpenPages(), 0U);
  panel_->EndEditParams(nullptr, nullptr);
  EXPECT_EQ(StoredFilter(), "");
  Open();
  panel_->BeginEditParams(nullptr, nullptr);
  EXPECT_EQ(OpenPages(), 1U);
  panel_->EndEditParams(nullptr, nullptr);
  EXPECT_EQ(OpenPages(), 0U) << "the panel knows the host that it is open in";
}

TEST_F(ThrowingHostTest, NothingIsConvertedOrCreatedWithoutAnInterface) {
  ConvertBVK converter(messages_, strings_, platform::ModuleHandle());
  EXPECT_FALSE(converter.Convert(nullptr));
  MappingCreator creator(converter, {messages_, strings_, pick_, platform::ModuleHandle()});
  EXPECT_FALSE(creator.CreateMNM(nullptr));
  EXPECT_THAT(NewMessages(), IsEmpty());
}

// --- Conversion ---

class ThrowingConversionTest : public ThrowingHostTest {
 protected:
  void SetUp() override {
    Store("MNMPath", RegistryType::kString, folder_.Write("map.mnm", "HEAD\tHead1\t\n"));
    Store("OutputPath", RegistryType::kString, folder_.Path().string());
    const std::string take = test::TrcText{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}}.Text();
    const std::string source = folder_.Write("walk.trc", take);
    desk_.ChooseFiles([source](const host::ShownFileDialog& dialog) {
      const bool is_source = dialog.title == "Select Source TRC Files...";
      return host::FileChoice{{is_source ? source : "target"}, true};
    });
  }

  // Converts with every call failing in turn, and expects `told` each time.
  void ConvertFailing(const std::function<void()>& fail, const std::string& told) {
    Open();
    const int calls = test::FailAtEachCall(
        host_, fail, [this] { Page().Click(kConvert); },
        [this, &told] {
          EXPECT_THAT(NewMessages(), ElementsAre(told));
          EXPECT_FALSE(application_.progress().IsOpen());
        });
    EXPECT_GT(calls, 6);
    EXPECT_THAT(NewMessages(), IsEmpty());
  }
};

TEST_F(ThrowingConversionTest, TellsThatMemoryHasRunOutAndClosesTheBar) {
  ConvertFailing(RunOutOfMemory,
                 "ConvertBVK Error: There is not enough memory to convert the file.");
}

TEST_F(ThrowingConversionTest, TellsOfAnyOtherException) {
  ConvertFailing(ThrowNumber, "ConvertBVK Error: An unexpected error ended the conversion.");
}

TEST_F(ThrowingConversionTest, AsksForTheTargetLikewise) {
  Store("TRCName", RegistryType::kBinary, std::string(1, '\0'));
  ConvertFailing(RunOutOfMemory,
                 "ConvertBVK Error: There is not enough memory to convert the file.");
}

// --- The mapping creator ---

class ThrowingCreatorTest : public ThrowingHostTest {
 protected:
  void SetUp() override {
    Interface& host = application_.plugin_interface();
    node_ = dynamic_cast<host::Node*>(host.CreateObjectNode(
        static_cast<Object*>(host.CreateInstance(kGeometricObjectSuperClass, kSphereClass))));
    node_->SetWireColor(kMarkerColor);
    desk_.Act([this] {
      application_.picking().Click(node_);
      return true;
    });
    desk_.ChooseFiles([this](const host::ShownFileDialog&) {
      return host::FileChoice{{folder_.File("made.mnm")}, true};
    });
  }

  host::Node* node_ = nullptr;
};

TEST_F(ThrowingCreatorTest, UndoesWhatWasDoneAndTellsWhy) {
  constexpr int kAbort = IDC_ABORT;
  int waits = 0;
  desk_.Act([&] {
    if (++waits < 4) {
      application_.picking().Click(node_);
    } else {
      desk_.desktop().ShownDialog(kCreator)->Click(kAbort);
    }
    return true;
  });
  int failures = 0;
  const auto create = [&] {
    waits = 0;
    Page().Click(kCreateMapping);
  };
  const auto check = [&] {
    EXPECT_EQ(desk_.desktop().ShownDialog(kCreator), nullptr);
    EXPECT_FALSE(application_.picking().IsActive());
    EXPECT_THAT(application_.callbacks().ExitCallbacks(), IsEmpty());
    EXPECT_EQ(node_->WireColor(), kMarkerColor);
    const std::vector<std::string> messages = NewMessages();
    if (messages.empty()) return;  // what was to be taken back failed, and nothing more
    EXPECT_THAT(messages, ElementsAre("MNM File Creation Status: There is not enough memory to "
                                      "create the mapping file."));
    ++failures;
  };
  Open();
  test::FailAtEachCall(host_, RunOutOfMemory, create, check);
  EXPECT_GT(failures, 3 * 4) << "entering a pick, waiting, telling the time, redrawing";
}

TEST_F(ThrowingCreatorTest, ClosesWhateverThrowsMeanwhile) {
  for (const char* operation : {"ClearPickMode", "UnRegisterExitSkelderCallback",
                                "GetINodeByHandle", "GetTime", "RedrawViews", "DeleteRollupPage"}) {
    SCOPED_TRACE(operation);
    int waits = 0;
    desk_.Act([&] {
      if (++waits == 3) {
        failing_.At(operation, ThrowNumber);
        Close();
      } else {
        application_.picking().Click(node_);
      }
      return true;
    });
    failing_.End();
    Open();
    Page().Click(kCreateMapping);
    failing_.End();
    EXPECT_EQ(waits, 3);
    EXPECT_EQ(desk_.desktop().ShownDialog(kCreator), nullptr);
    EXPECT_FALSE(application_.picking().IsActive());
    EXPECT_THAT(application_.callbacks().ExitCallbacks(), IsEmpty());
    EXPECT_EQ(OpenPages(), 0U);
    EXPECT_THAT(NewMessages(), IsEmpty());
    node_->SetWireColor(kMarkerColor);
  }
}

// --- The other commands ---

TEST_F(ThrowingHostTest, ACommandThatThrowsIsNotCarriedOut) {
  Open();
  for (const int button : {kBrowseMapping, kBrowseOutput}) {
    failing_.At(1, RunOutOfMemory);
    Page().Click(button);
    EXPECT_THAT(NewMessages(), ElementsAre("OrvaneUtilities Error: There is not enough memory for "
                                           "this command."));
    failing_.At(1, ThrowNumber);
    Page().Click(button);
    EXPECT_THAT(NewMessages(), ElementsAre("OrvaneUtilities Error: An unexpected error ended this "
                                           "command."));
  }
}

}  // namespace
}  // namespace orvane
