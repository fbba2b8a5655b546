#include "tests/plugin/utilities/conversion_fixture.h"

// Names of bytes that stand in no name on Windows, or that Wine's dialogs do not take.

namespace orvane {
namespace {

using test::ConversionTest;

TEST_F(ConversionTest, LogsNamesOfAnyBytes) {
  const std::string path = Write("a b'\"\xC3\xA9\xE9.trc", "a poem\n");
  EXPECT_TRUE(ConvertBatch({path}));
  EXPECT_EQ(LoggedFiles(),
            path + ": The file is does not have a compatible \"(X/Y/Z)\" header state\nfile: " +
                path + " done.\n");
}

}  // namespace
}  // namespace orvane
