#pragma once

#include <optional>
#include <string_view>

#include "formats/text/text_taker.h"
#include "formats/trc/document.h"

// Writes the markers of a document as a marker file of the host's character animation.
// docs/formats/bvk.md describes what is written. May be called from any thread; the document is
// only read.
namespace orvane {

// What is added to every position, in the unit of the document.
struct BvkOffset {
  float x = 0.0F;
  float y = 0.0F;
  float z = 0.0F;
  bool in_trc_space = true;  // in the axes of the document, Y up; otherwise in those of the file
};

// What a file tells beside the markers.
struct BvkDetails {
  std::string_view name;       // of the file, without folder and extension
  std::string_view date_time;  // when it is written, as ctime gives it: with a line feed at its end
  std::optional<BvkOffset> offset;
};

// Hands the text of the file to `take`, in pieces of limited size and with line feeds as line ends:
// the enabled markers of `document` and as many frames as it announces, turned from its axes (Y up)
// to the file's (Z up). What a marker has no sample for is a dropout. Unit and scale stay.
// Throws std::bad_alloc, and what `take` throws.
void PrintBvk(const TRCDocument& document, const BvkDetails& details, const TextTaker& take);

}  // namespace orvane
