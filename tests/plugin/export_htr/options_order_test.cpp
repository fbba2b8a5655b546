#include <gtest/gtest.h>

#include "plugin/export_htr/options.h"
#include "tests/support/journal_registry.h"

// In which order the options read and write their values.

namespace orvane {
namespace {

TEST(ExportHTROptionsTest, LoadsAndSavesInAFixedOrder) {
  test::JournalRegistry registry;
  ExportHTROptions options;
  options.Load();
  EXPECT_EQ(registry.journal,
            "read Pose 4\nread Animate 4\nread ParentTransforms 4\nread Range 4\nread Offset 4\n"
            "read ScaleFactor 8\n");
  registry.journal.clear();
  options.Save();
  EXPECT_EQ(registry.journal,
            "write Pose 1\nwrite Animate 1\nwrite ParentTransforms 1\nwrite Range 1\n"
            "write Offset 4\nwrite ScaleFactor 4\n");
}

}  // namespace
}  // namespace orvane
