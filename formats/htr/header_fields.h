#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formats/htr/document.h"
#include "formats/htr/oddities.h"

// The keyword lines of a motion file's header. Belongs to the reader.
namespace orvane {

// Stores one header value: in `document`, or in `segments_awaited` for the announced segment count.
// An unknown keyword is ignored. Returns an empty text, or the message when the value is one that
// this reader does not take.
[[nodiscard]] std::string ReadHeaderField(std::string_view keyword, std::string_view value,
                                          HtrDocument& document, std::int64_t& segments_awaited,
                                          const HtrOddities& oddities);

}  // namespace orvane
