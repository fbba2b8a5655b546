#pragma once

#include <string>

#include "formats/text/number_form.h"
#include "formats/text/text_taker.h"
#include "formats/trc/document.h"

// Writes a document as a marker file. docs/formats/trc.md describes what is written.
namespace orvane {

// How a file says what a document holds, where there is a choice, and what a document does not
// hold.
struct TrcManner {
  NumberForm numbers = NumberForm::Shortest();  // of positions
  // Frames per second as texts that begin with a number; empty for the document's whole numbers,
  // and of the recording that the file was made of for `data_rate`.
  std::string data_rate{};
  std::string camera_rate{};
  std::string original_rate{};
  double first_time = 0.0;  // of the first frame, in seconds
  std::string name{};  // of the file, which its first line tells; tabs and line ends become blanks
};

// Hands the bytes of the file to `take`, in order and in pieces of limited size: the markers that
// are enabled, and their samples, a dropout as three empty cells. The frames follow each other from
// the document's first, and are as many as the longest marker has samples; so do their times.
//
// Returns an empty text, or why the file could not be read back, as a text about it: there is no
// marker, a name cannot stand in the file, a marker is there twice, or a line is longer than the
// reader takes. Some bytes may have been handed over by then.
[[nodiscard]] std::string PrintTrc(const TRCDocument& document, const TextTaker& take,
                                   const TrcManner& manner = {});

}  // namespace orvane
