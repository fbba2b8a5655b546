#pragma once

#include <string>

#include "formats/text/byte_source.h"
#include "formats/trc/document.h"
#include "inspect/check/checked_file.h"

// The check of TRC files. The reader reads them as it always does, and is watched meanwhile;
// docs/formats/trc.md lists the codes. Lines and columns, in bytes, count from 1. A file is read
// once, from its first line to its last. What is returned holds copies, so that the bytes may go.
// May be called from any thread, each with a source and a document of its own.

namespace orvane {

// Checks all bytes that `source` has, which are those of the file that is known as `file`, and
// leaves in `document`, which is empty, what was read of them: up to where the reader has refused
// the file, if it has. Throws a CheckFailure when they cannot be read for want of memory, or were
// read wrongly.
[[nodiscard]] CheckedFile CheckTrc(const std::string& file, ByteSource& source,
                                   TRCDocument& document);

}  // namespace orvane
