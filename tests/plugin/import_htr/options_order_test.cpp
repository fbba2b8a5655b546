#include <gtest/gtest.h>

#include "plugin/import_htr/options.h"
#include "tests/support/journal_registry.h"

// In which order the options read and write their values.

namespace orvane {
namespace {

TEST(ImportHTROptionsTest, LoadsAndSavesInAFixedOrder) {
  test::JournalRegistry registry;
  ImportHTROptions options;
  options.Load();
  EXPECT_EQ(registry.journal,
            "read Apply 4\nread Animate 4\nread KeyBasePosition 4\nread EndEffectors 4\n"
            "read Range 4\nread FPS 4\nread RotationController 4\nread Size 4\n"
            "read ScaleFactor 8\n");
  registry.journal.clear();
  options.Save();
  EXPECT_EQ(registry.journal,
            "write Apply 1\nwrite Animate 1\nwrite KeyBasePosition 1\nwrite EndEffectors 1\n"
            "write Range 1\nwrite FPS 1\nwrite RotationController 4\nwrite Size 4\n"
            "write ScaleFactor 8\n");
}

}  // namespace
}  // namespace orvane
