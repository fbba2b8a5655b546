#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "host/application/application.h"
#include "platform/module.h"
#include "plugin/import_htr/import_htr.h"
#include "plugin/resources/resource.h"
#include "tests/support/desk.h"
#include "tests/support/htr_text.h"
#include "tests/support/posix/memory_in_use.h"
#include "tests/support/temporary_folder.h"

// What an importer keeps of a file between two imports.

namespace orvane {
namespace {

constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;

constexpr int kFrames = 5000;
constexpr std::size_t kLittle = 50'000;  // bytes; the document of the file takes more

TEST(ImportHTRMemory, NothingOfAFileIsKept) {
  test::TemporaryFolder folder;
  test::HtrText file;
  file.segments = {{"Hips", "GLOBAL", "1 2 3 0 0 0 10", {}}};
  file.segments[0].frames.assign(kFrames, "4 0 0 40 50 60");
  const std::string path = folder.Write("walk.htr", file.Text());
  for (const int button : {kOk, kCancel}) {
    SCOPED_TRACE(button);
    test::Desk desk;
    desk.Expect([button](host::ScriptedDialog& dialog) { dialog.Click(button); });
    host::Application application;
    ImportHTROptions options;
    MessageSink sink;
    auto importer = std::make_unique<ImportHTR>(options, sink, platform::ModuleHandle());
    EXPECT_EQ(importer->DoImport(path.c_str(), nullptr, &application.plugin_interface(), 0), 1);
    EXPECT_LT(test::MemoryHeldBy(std::move(importer)), kLittle);
  }
}

}  // namespace
}  // namespace orvane
