#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "host/application/application.h"
#include "platform/module.h"
#include "plugin/export_htr/export_htr.h"
#include "tests/support/bone_nodes.h"
#include "tests/support/desk.h"
#include "tests/support/posix/memory_in_use.h"
#include "tests/support/temporary_folder.h"

// What an exporter keeps of a skeleton between two exports.

namespace orvane {
namespace {

TEST(ExportHTRMemory, NothingOfASkeletonIsKept) {
  test::TemporaryFolder folder;
  test::Desk desk;
  host::Application application;
  host::Node& hips = test::AddBone(application.scene(), "Hips");
  test::SetBoneLength(hips, 10);
  application.scene().Select(hips);
  application.scene().Animation().SetRange(Interval(0, 160 * 5000));
  ExportHTROptions options;
  MessageSink sink;
  auto exporter = std::make_unique<ExportHTR>(options, sink, platform::ModuleHandle());
  const std::string path = folder.File("walk.htr");
  EXPECT_EQ(exporter->DoExport(path.c_str(), nullptr, &application.plugin_interface(), 1, 0), 1);
  EXPECT_LT(test::MemoryHeldBy(std::move(exporter)), 50'000U);
}

}  // namespace
}  // namespace orvane
