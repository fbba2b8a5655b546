#pragma once

#include <string>
#include <string_view>

#include "plugin/htr/document.h"
#include "plugin/htr/read_observer.h"

// Reads motion files into a document. docs/formats/htr.md describes the files, and what is let
// pass.
//
// Both functions clear `document` as HtrDocument::Clear does and fill it. They return an empty text
// on success; otherwise the message to show as it stands, with the document holding what was read
// up to that point. With `read_motion` false, reading ends with success at the first motion
// section: only the header, the hierarchy and the base positions are read. `observer` may be null
// and is not kept.
namespace orvane {

// Opens `file_name` (UTF-8), with ".htr" added unless its fourth character from the end is a full
// stop. When that fails, the message says so and `document` is left untouched.
[[nodiscard]] std::string ReadHtrFile(HtrDocument& document, const std::string& file_name,
                                      bool read_motion, HtrReadObserver* observer = nullptr);

// Reads the bytes of a file. Nothing in `document` refers to them afterwards.
[[nodiscard]] std::string ReadHtrBytes(HtrDocument& document, std::string_view bytes,
                                       bool read_motion, HtrReadObserver* observer = nullptr);

}  // namespace orvane
