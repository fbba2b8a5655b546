#pragma once

#include <optional>
#include <string>

#include "formats/htr/document.h"
#include "formats/text/number_form.h"
#include "formats/text/text_taker.h"
#include "formats/units/units.h"

// Writes a document as a motion file. docs/formats/htr.md describes what is written, and where it
// differs from what is read. May be called from any thread; the document is only read.
namespace orvane {

// Writes `document` to `file_name` (UTF-8), with ".htr" added unless its fourth character from the
// end is a full stop. An existing file is emptied first.
//
// Returns an empty text on success; otherwise the message to show as it stands, with no file made
// or changed: when there are no segments, when two have the same name, or when the file cannot be
// opened. A disk that is full later on is not noticed. Nothing is thrown.
[[nodiscard]] std::string WriteHtrFile(const HtrDocument& document, const std::string& file_name);

// How a file says what a document holds, where there is a choice. The defaults are the ways of
// WriteHtrFile.
struct HtrManner {
  // Of all real numbers. Of the shortest, angles in degrees are those that are read as the very
  // angle, where there are any. Nothing: six decimals, and two of the scale factor.
  std::optional<NumberForm> numbers{};
  std::string frame_rate{};             // as text; empty for the document's whole number
  std::uint32_t gravity_axis = kAxisY;  // an axis code of formats/units
};

// Hands the bytes of the file to `take`, in order and in pieces of limited size, whatever the
// document holds and however many frames its header announces. Nothing is checked. Throws
// std::bad_alloc, and what `take` throws.
void PrintHtr(const HtrDocument& document, const TextTaker& take, const HtrManner& manner = {});

}  // namespace orvane
