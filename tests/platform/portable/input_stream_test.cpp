#include "platform/input_stream.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <string>
#include <utility>

namespace {

using platform::InputStream;
using platform::ReadBytes;
using platform::ReadSome;
using platform::StreamNamed;

TEST(InputStreamTest, NamesOfStreamsAreTheSystemsOwn) {
  const std::pair<const char*, std::optional<InputStream>> names[] = {
      {"/dev/stdin", 0},
      {"/dev/fd/0", 0},
      {"/dev/fd/63", 63},
      {"/proc/self/fd/7", 7},
      {"/dev/fd/", std::nullopt},
      {"/dev/fd/-1", std::nullopt},
      {"/dev/fd/3.htr", std::nullopt},
      {"/dev/fd/99999999999", std::nullopt},
      {"/dev/null", std::nullopt},
      {"/takes/dev/fd/3", std::nullopt},
      {"-", std::nullopt},
      {"", std::nullopt},
  };
  for (const auto& [name, stream] : names) EXPECT_EQ(StreamNamed(name), stream) << name;
}

class PipeTest : public testing::Test {
 protected:
  PipeTest() { EXPECT_EQ(pipe(ends_.data()), 0); }
  ~PipeTest() override {
    close(ends_[0]);
    CloseWriteEnd();
  }

  void Send(const std::string& bytes) const {
    EXPECT_EQ(write(ends_[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  void CloseWriteEnd() {
    if (ends_[1] >= 0) close(std::exchange(ends_[1], -1));
  }

  // The next piece of at most four bytes.
  std::string Receive() const {
    std::array<char, 4> buffer{};
    const ReadBytes read = ReadSome(ends_[0], buffer.data(), buffer.size());
    EXPECT_EQ(read.error, "");
    return {buffer.data(), read.count};
  }

  std::array<int, 2> ends_{-1, -1};
};

TEST_F(PipeTest, IsReadAsItIsUpToItsEnd) {
  Send(std::string("a\r\n\0\x1a", 5));
  EXPECT_EQ(Receive(), std::string("a\r\n\0", 4));
  EXPECT_EQ(Receive(), "\x1a");
  CloseWriteEnd();
  EXPECT_EQ(Receive(), "");
  EXPECT_FALSE(platform::IsTerminal(ends_[0]));
}

TEST_F(PipeTest, AStreamThatIsNotOpenSaysSo) {
  const InputStream closed = dup(ends_[0]);
  close(closed);
  char byte = 0;
  const ReadBytes read = ReadSome(closed, &byte, 1);
  EXPECT_EQ(read.count, 0U);
  EXPECT_EQ(read.error, "Bad file descriptor");
}

}  // namespace
