#include "host/application/rollup_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "host/application/application.h"
#include "sdk/skelderutil/custom_edit.h"
#include "tests/host/desktop/dialog_fixture.h"

namespace host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// The system's messages.
constexpr unsigned int kInitialize = 0x110;
constexpr unsigned int kCommand = 0x111;

// What the procedure below was called with, of these.
struct Call {
  HWND window;
  unsigned int message;
  std::uintptr_t word;
};

struct Record {
  std::vector<Call> calls;
  std::function<void()> on_command;
};

Record* current_record = nullptr;

std::intptr_t Procedure(HWND window, unsigned int message, std::uintptr_t word,
                        std::intptr_t parameter) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): made from the record's address
  if (message == kInitialize) current_record = reinterpret_cast<Record*>(parameter);
  Record& record = *current_record;
  if (message != kInitialize && message != kCommand) return 0;
  record.calls.push_back({window, message, word});
  if (message == kCommand && record.on_command) record.on_command();
  return 1;
}

class RollupPagesTest : public DialogFixture {
 protected:
  HWND Add(int dialog_id = kPage) {
    return host_.AddRollupPage(module, dialog_id, Procedure, "My Page",
                               reinterpret_cast<std::intptr_t>(&record_), 2, 4000);
  }

  Application application_;
  ::Interface& host_ = application_.plugin_interface();
  Record record_;
};

TEST_F(RollupPagesTest, AreShownAndRunByTheirProcedure) {
  const HWND window = Add();
  ASSERT_NE(window, nullptr);
  ASSERT_THAT(application_.rollup_pages().Open(), SizeIs(1));
  const RollupPage& page = application_.rollup_pages().Open()[0];
  EXPECT_EQ(page.window, window);
  EXPECT_EQ(page.title, "My Page");
  EXPECT_EQ(page.flags, 2U);
  EXPECT_EQ(page.category, 4000);
  desktop.ShownDialog(kPage)->Click(kCheck);
  ASSERT_THAT(record_.calls, SizeIs(2));
  EXPECT_EQ(record_.calls[0].window, window);
  EXPECT_EQ(record_.calls[0].message, kInitialize);
  EXPECT_EQ(record_.calls[1].window, window);
  EXPECT_EQ(record_.calls[1].message, kCommand);
  EXPECT_EQ(record_.calls[1].word, std::uintptr_t{kCheck});
}

TEST_F(RollupPagesTest, MayBeDeletedByTheirProcedure) {
  const HWND window = Add();
  record_.on_command = [&] { host_.DeleteRollupPage(window); };
  ScriptedDialog* const page = desktop.ShownDialog(kPage);
  page->Click(kCheck);
  EXPECT_TRUE(page->HasEnded());
  EXPECT_THAT(application_.rollup_pages().Open(), IsEmpty());
  EXPECT_EQ(application_.scene().Misuse().Count(), 0U);
}

TEST_F(RollupPagesTest, AreDeletedOnce) {
  const HWND window = Add();
  host_.DeleteRollupPage(window);
  host_.DeleteRollupPage(window);
  EXPECT_THAT(application_.scene().Misuse().Messages(),
              ElementsAre("DeleteRollupPage of a page that is not open"));
}

TEST_F(RollupPagesTest, AreNotAddedWithoutTheirDialog) {
  EXPECT_EQ(Add(200), nullptr);
  EXPECT_THAT(application_.rollup_pages().Open(), IsEmpty());
}

TEST_F(RollupPagesTest, CustomEditControlsAreReleasedAsOftenAsTheyWereObtained) {
  Add(kDialog);
  const HWND control = desktop.ShownDialog(kDialog)->ControlWindow(kCustomEdit);
  ICustEdit* const first = GetICustEdit(control);
  ASSERT_NE(first, nullptr);
  ICustEdit* const second = GetICustEdit(control);
  EXPECT_EQ(application_.HeldCustomEdits(), 2);
  ReleaseICustEdit(first);
  ReleaseICustEdit(second);
  EXPECT_EQ(application_.HeldCustomEdits(), 0);
  ReleaseICustEdit(second);
  EXPECT_THAT(application_.scene().Misuse().Messages(),
              ElementsAre("ReleaseICustEdit of a control that is not held"));
}

}  // namespace
}  // namespace host
