#pragma once

#include <cstddef>
#include <string_view>

// What a marker file holds, without reading its numbers.
namespace orvane {

struct TRCOutline {
  std::string_view header;  // the lines before the frames; for TRCDocument::ReadBytes
  std::size_t frames = 0;   // lines that the reader takes for frames
};

// The header is a part of `bytes`.
TRCOutline OutlineTRC(std::string_view bytes);

}  // namespace orvane
