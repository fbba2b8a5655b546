#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "formats/text/byte_source.h"

// A file that is read, of which it is to be told, too, how it begins. Nothing fails but for want of
// memory, and where the source does.

namespace orvane {

// Keeps as many of the first bytes as show a file's kind and its flaws (content_kind.h,
// text_flaw.h).
class StartedSource final : public ByteSource {
 public:
  // Of all bytes of `source`, which must outlive this.
  explicit StartedSource(ByteSource& source) : source_(source) {}

  [[nodiscard]] std::size_t Read(std::span<char> block) override;
  [[nodiscard]] std::size_t Size() const override { return source_.Size(); }

  // The first bytes. Reads on as far as they have not been asked for.
  [[nodiscard]] std::string_view Start();

 private:
  ByteSource& source_;
  std::string start_;
};

}  // namespace orvane
