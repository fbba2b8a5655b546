#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "cli/common/input_file.h"
#include "formats/text/files.h"

// The bytes of a file that is read from its start to its end, and held nowhere.

namespace cli {

class InputSource final : public orvane::ByteSource {
 public:
  // Opens `file`. Throws a Failure that says why when it cannot be read.
  explicit InputSource(const InputFile& file);

  // Throws a Failure when `file` cannot be read to its end.
  [[nodiscard]] std::size_t Read(std::span<char> block) override;
  [[nodiscard]] std::size_t Size() const override { return source_.Size(); }

 private:
  std::string name_;
  orvane::FileSource source_;
};

}  // namespace cli
