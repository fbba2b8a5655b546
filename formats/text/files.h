#pragma once

#include <cstddef>
#include <fstream>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "formats/text/byte_source.h"

// Files as a whole: the name under which one is opened, and its bytes. Names are in the system's
// narrow encoding, as the host gives them. May be called from any thread; a FileSource and a stream
// are for one at a time. What cannot be read or made is told in what is returned; a name for which
// there is no memory throws std::bad_alloc.
namespace orvane {

// What readers and writers tell of a file that they cannot open, or have no memory for.
inline constexpr char kNotOpened[] = "The file could not be opened";

// Returns `name` itself when its fourth character from the end is a full stop, whatever the letters
// behind it are; otherwise, and when it is shorter than four characters, `name` with `extension`
// (such as ".htr") behind it.
[[nodiscard]] std::string WithExtension(std::string_view name, std::string_view extension);

// Returns all bytes of the file, or nothing when it is missing, may not be read, is no file (a
// directory or a device), cannot be read to its end, or does not fit into memory.
[[nodiscard]] std::optional<std::string> ReadFileBytes(const std::string& name);

// The bytes of a file, of which no more is held in memory than is asked for. A file whose size
// cannot be told beforehand, as that of a pipe, is read as a whole.
class FileSource final : public ByteSource {
 public:
  // Opens the file. It is not open when ReadFileBytes would return nothing without having read.
  explicit FileSource(const std::string& name);

  [[nodiscard]] bool IsOpen() const { return is_open_; }
  // Whether it ended because no more of it could be read.
  [[nodiscard]] bool HasFailed() const { return has_failed_; }

  [[nodiscard]] std::size_t Read(std::span<char> block) override;
  [[nodiscard]] std::size_t Size() const override { return size_; }

 private:
  [[nodiscard]] bool Open(const std::string& name);

  std::ifstream stream_;
  std::string whole_;  // of a file whose size could not be told
  std::size_t taken_ = 0;
  std::size_t size_ = 0;
  bool is_open_ = false;
  bool has_failed_ = false;
};

// Makes the file, or empties the one that is there, and returns a stream that writes bytes to it as
// they are. The stream is not open when that fails.
std::ofstream CreateFileForBytes(const std::string& name);

// The same for text: every line feed becomes the system's line end.
std::ofstream CreateFileForText(const std::string& name);

}  // namespace orvane
