#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "formats/trc/document.h"
#include "formats/trc/read_observer.h"
#include "inspect/check/checked_file.h"

// The check of TRC files. The reader reads them as it always does, and is watched meanwhile;
// docs/formats/trc.md lists the codes. Lines and columns, in bytes, count from 1. A file is read
// once, from its first line to its last. What is returned holds copies, so that the bytes may go.

namespace orvane {

// Checks `bytes`, which are those of the file that is known as `file`. Throws a CheckFailure when
// they cannot be read for want of memory, or were read wrongly.
[[nodiscard]] CheckedFile CheckTrc(const std::string& file, std::string_view bytes);

// The same, and leaves in `document`, which is empty, what was read of them: up to where the reader
// has refused the file, if it has.
[[nodiscard]] CheckedFile CheckTrc(const std::string& file, std::string_view bytes,
                                   TRCDocument& document);

// Reads a file into `document`, watched by `observer`, and returns what the reader says of it.
using TrcReading = std::function<std::string(TRCDocument& document, TRCReadObserver& observer)>;

// The same of a file that is not in memory: `start` is how it begins, as many bytes as show its
// kind and its flaws (content_kind.h, text_flaw.h), or all of it.
[[nodiscard]] CheckedFile CheckTrc(const std::string& file, std::string_view start,
                                   const TrcReading& read, TRCDocument& document);

}  // namespace orvane
