#include "platform/output_file.h"

#include <gmock/gmock.h>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

// What holds of output files only where files have symbolic links.

namespace {

TEST(OutputFileLinkTest, RemovesNoLinkForAnAbandonedFile) {
  const test::TemporaryFolder folder;
  std::filesystem::create_symlink("elsewhere", folder.File(".orvane-1-3"));
  {
    platform::OutputFile file(folder.File("scene.glb"), false);
    EXPECT_EQ(file.Write("bytes"), "");
  }
  EXPECT_THAT(test::NamesIn(folder.Path()), testing::ElementsAre(".orvane-1-3"));
}

}  // namespace
