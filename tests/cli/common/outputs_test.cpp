#include "cli/common/outputs.h"

#include <gtest/gtest.h>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace cli {
namespace {

template <typename Error>
std::string TextOf(const Error& error) {
  try {
    ReadBack("out.htr", [&error]() -> int { throw error; });
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.status, ExitStatus::kInputOutput);
    EXPECT_EQ(failure.complaints.front().subject, "out.htr");
    EXPECT_EQ(failure.complaints.front().advice, "");
    return failure.complaints.front().text;
  }
  return "";
}

TEST(ReadBackTest, TellsWhatCameInBetween) {
  const std::error_code broken = std::make_error_code(std::errc::io_error);
  const std::string reason = broken.message();
  EXPECT_EQ(TextOf(std::bad_alloc()), "could not be read back: There is not enough memory");
  EXPECT_EQ(TextOf(std::length_error("")), "could not be read back: There is not enough memory");
  EXPECT_EQ(TextOf(std::system_error(broken)), "could not be read back: " + reason);
  EXPECT_EQ(TextOf(std::ios_base::failure("", broken)), "could not be read back: " + reason);
}

TEST(BytesWrittenTest, AreThoseOfTheFile) {
  const test::TemporaryFolder folder;
  const std::string bytes("a\r\n\0b\x1a", 6);
  EXPECT_EQ(BytesWritten(folder.Write("file", bytes)), bytes);
  EXPECT_EQ(BytesWritten(folder.File("missing")), "");
  EXPECT_THROW((void)BytesWritten(folder.Path().string()), std::system_error);
}

}  // namespace
}  // namespace cli
