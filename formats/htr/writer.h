#pragma once

#include <string>

#include "formats/htr/document.h"
#include "formats/text/text_taker.h"

// Writes a document as a motion file. docs/formats/htr.md describes what is written, and where it
// differs from what is read.
namespace orvane {

// Writes `document` to `file_name` (UTF-8), with ".htr" added unless its fourth character from the
// end is a full stop. An existing file is emptied first.
//
// Returns an empty text on success; otherwise the message to show as it stands, with no file made
// or changed: when there are no segments, when two have the same name, or when the file cannot be
// opened. A disk that is full later on is not noticed.
[[nodiscard]] std::string WriteHtrFile(const HtrDocument& document, const std::string& file_name);

// Hands the bytes of the file to `take`, in order and in pieces of limited size, whatever the
// document holds and however many frames its header announces. Nothing is checked.
void PrintHtr(const HtrDocument& document, const TextTaker& take);

}  // namespace orvane
