#include "cli/convert/conversion_batch.h"

#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>

#include "platform/interrupt.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trc_text.h"

namespace {

using cli::Conversion;
using cli::ConversionStatus;
using testing::HasSubstr;

class ConversionBatchTest : public testing::Test {
 protected:
  // A conversion of the new file `name`, whose only marker is at `x`.
  Conversion Plan(const std::string& name, const std::string& x, const std::string& output) const {
    const test::TrcText take{.markers = {"Head1"}, .frames = {{x + "\t2\t3"}}};
    Conversion conversion;
    conversion.input = folder_.Write(name, take.Text());
    conversion.source = conversion.input;
    conversion.output = folder_.File(output);
    return conversion;
  }

  test::TemporaryFolder folder_;
  const cli::ConversionOrder order_{
      .module = ORVANE_BINARY_DIR "/bin/OrvaneFileIO" ORVANE_MODULE_SUFFIX,
      .mapping = "",
      .offset = {},
      .cut = {}};
};

// As those of "walk.trc" and "WALK.trc" have where the case of letters makes no other file.
TEST_F(ConversionBatchTest, KeepsOutputsApartThatHaveOneName) {
  std::filesystem::create_directory(folder_.File("out"));
  const cli::ConvertedBatch batch = ConvertBatch(
      order_, {Plan("run.trc", "4", "run.bvk"), Plan("walk.trc", "1", "walk.bvk"),
               Plan("walk.xyz", "9", "out/walk.bvk"), Plan("jump.trc", "5", "jump.bvk")});
  for (const Conversion& conversion : batch.conversions) {
    EXPECT_EQ(conversion.status, ConversionStatus::kConverted) << conversion.input;
  }
  EXPECT_THAT(test::ReadFile(folder_.File("walk.bvk")), HasSubstr("\n1\t1.000000\t"));
  EXPECT_THAT(test::ReadFile(folder_.File("out/walk.bvk")), HasSubstr("\n1\t9.000000\t"));
  EXPECT_THAT(test::ReadFile(folder_.File("jump.bvk")), HasSubstr("\n1\t5.000000\t"));
  EXPECT_THAT(batch.log, testing::ContainsRegex("2 files(.|\n)*walk.trc done(.|\n)*2 files"));
  EXPECT_THAT(test::NamesIn(folder_.Path()), testing::SizeIs(8));
}

// The look at many files takes its time.
TEST_F(ConversionBatchTest, LooksAtNoFileWhenTheUserHasInterrupted) {
  const auto convert = [this] {
    platform::CatchInterrupts();
    (void)std::raise(SIGINT);
    const cli::ConvertedBatch batch = ConvertBatch(order_, {Plan("walk.trc", "1,5", "walk.bvk")});
    const Conversion& conversion = batch.conversions.front();
    const bool is_left = conversion.status == ConversionStatus::kInterrupted &&
                         conversion.report.findings.empty() && conversion.markers_dropped == 0;
    std::_Exit(is_left ? 0 : 1);
  };
  EXPECT_EXIT(convert(), testing::ExitedWithCode(0), "");
}

}  // namespace
