#include "tests/support/full_registry.h"

#include <gtest/gtest.h>

#include "host/application/application.h"
#include "platform/module.h"
#include "plugin/import_htr/import_htr.h"
#include "plugin/resources/resource.h"
#include "tests/support/desk.h"
#include "tests/support/htr_text.h"
#include "tests/support/temporary_folder.h"

// An import whose options dialog runs out of memory.

namespace orvane {
namespace {

TEST(ImportHTROptionsTest, ADialogWithoutMemoryIsAFailureThatIsToldAndNoCancellation) {
  constexpr int kOk = IDC_OK;
  test::HtrText file;
  file.segments = {{"Hips", "GLOBAL", "1 2 3 0 0 0 10", {"10 0 0 0 0 0"}}};
  const test::TemporaryFolder folder;
  const std::string path = folder.Write("walk.htr", file.Text());
  test::Desk desk;
  const test::FullRegistry registry;
  host::Application application;
  MessageSink messages;
  ImportHTROptions options;
  ImportHTR importer(options, messages, platform::ModuleHandle());
  desk.Expect([](host::ScriptedDialog& dialog) { dialog.Click(kOk); });
  EXPECT_EQ(importer.DoImport(path.c_str(), nullptr, &application.plugin_interface(), 0), 0);
  EXPECT_EQ(desk.Messages(), "ImportHTR Error: There is not enough memory to import the file.\n");
  EXPECT_FALSE(application.progress().IsOpen());
  EXPECT_EQ(application.scene().NodeCount(), 0U);
}

}  // namespace
}  // namespace orvane
