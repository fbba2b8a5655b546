#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// Opens a file in a mode of std::fopen, or ends the program.
File OpenFile(const std::string& path, const char* mode);

// Calls `take` with the text of a file, block by block; each ends with a line break.
template <typename Take>
void ReadBlocks(const std::string& path, Take take) {
  constexpr std::size_t kBlock = std::size_t{256} * 1024;
  const File file = OpenFile(path, "rb");
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  std::vector<char> buffer;
  std::size_t held = 0;
  std::size_t got = 0;
  do {
    buffer.resize(held + kBlock + 1);  // with room for the line break that a file may end without
    got = std::fread(buffer.data() + held, 1, kBlock, file.get());
    held += got;
    if (got == 0 && held != 0) buffer[held++] = '\n';
    const std::string_view text(buffer.data(), held);
    const std::size_t whole = text.rfind('\n') + 1;
    if (whole != 0) take(text.substr(0, whole));
    held -= whole;
    text.copy(buffer.data(), held, whole);
  } while (got != 0);
}

// A file that is written in few large pieces.
class Output {
 public:
  explicit Output(const std::string& path);
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output();

  // Where to write next, with room for kRoom bytes; then Wrote() takes where that ended.
  char* Room() {
    if (used_ > kLong) Flush();
    return buffer_.data() + used_;
  }
  void Wrote(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.data()); }

  void Write(const std::string& text) { Wrote(Room() + text.copy(Room(), kRoom)); }

 private:
  static constexpr std::size_t kLong = std::size_t{256} * 1024;
  static constexpr std::size_t kRoom = 4096;

  void Flush();

  File file_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
};

}  // namespace bench
