#pragma once

#include <string>
#include <string_view>

#include "formats/htr/document.h"
#include "formats/htr/read_observer.h"
#include "formats/text/byte_source.h"

// Reads motion files into a document. docs/formats/htr.md describes the files, and what is let
// pass.
//
// All clear `document` as HtrDocument::Clear does and fill it. They return an empty text
// on success; otherwise the message to show as it stands, with the document holding what was read
// up to that point. With `read_motion` false, reading ends with success at the first motion
// section: only the header, the hierarchy and the base positions are read. `observer` may be null
// and is not kept. Where memory does not suffice, the message is that of a file that cannot be
// opened, and `document` is empty; nothing is thrown but what `observer` throws.
//
// May be called from any thread, each with a document of its own.
namespace orvane {

// Opens `file_name` (UTF-8), with ".htr" added unless its fourth character from the end is a full
// stop. When that fails, the message says so and `document` is left untouched. When the file cannot
// be read to its end, the message is the same and `document` is empty.
[[nodiscard]] std::string ReadHtrFile(HtrDocument& document, const std::string& file_name,
                                      bool read_motion, HtrReadObserver* observer = nullptr);

// Reads the bytes of a file that `source` has, all of them.
[[nodiscard]] std::string ReadHtrFrom(HtrDocument& document, ByteSource& source, bool read_motion,
                                      HtrReadObserver* observer = nullptr);

// Reads the bytes of a file. Nothing in `document` refers to them afterwards.
[[nodiscard]] std::string ReadHtrBytes(HtrDocument& document, std::string_view bytes,
                                       bool read_motion, HtrReadObserver* observer = nullptr);

}  // namespace orvane
