#pragma once

#include "formats/text/byte_source.h"

// The time that a marker file's text says of its first frame, which readers pass over. Nothing
// fails but for want of memory. May be called from any thread, each with a source of its own.

namespace orvane {

// In seconds, of a file whose bytes `source` has, of which little more is read than tells it; 0
// where its first row has no number there, or one that is infinite.
[[nodiscard]] double FirstTimeOfTrc(ByteSource& source);

}  // namespace orvane
