#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "plugin/resources/resource.h"
#include "tests/module/utility_fixture.h"
#include "tests/support/files.h"

namespace test {

inline constexpr int kDescription = IDC_MARKER_DESCRIPTION;
inline constexpr int kBack = IDC_BACK;
inline constexpr int kSkip = IDC_SKIP;
inline constexpr int kAbort = IDC_ABORT;

inline constexpr WireColor kMarkerColor = 204U | 51U << 8U | 51U << 16U;
inline constexpr WireColor kPickedColor = 25U | 25U << 8U | 204U << 16U;

// The codes of all markers in their order, those of one step side by side.
inline const std::vector<std::string> kCodes = {
    "LFHD", "LBHD", "RBHD", "RFHD",  "C7",    "CLAV",  "STRN",  "LSHO",  "LELB",
    "LILB", "LWRA", "LWRB", "LFIN",  "RSHO",  "RELB",  "RILB",  "RWRA",  "RWRB",
    "RFIN", "T10",  "SACR", "LFWT",  "LBWT",  "RBWT",  "RFWT",  "LKNE",  "LKNI",
    "LANK", "LHEL", "LMT5", "LMTI",  "LTOE",  "RKNE",  "RKNI",  "RANK",  "RHEL",
    "RMT5", "RMTI", "RTOE", "LPRPB", "LPRPM", "LPRPT", "RPRPB", "RPRPM", "RPRPT"};

inline const std::set<std::string> kOptional = {"LILB",  "RILB",  "SACR",  "LKNI",  "LHEL",
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
    EXPECT_THAT(ObjectsIn(kPickedColor), testing::IsEmpty());
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

}  // namespace test
