#pragma once

#include "formats/csv/manner.h"
#include "formats/htr/document.h"
#include "formats/text/text_taker.h"
#include "formats/trc/document.h"

// Writes documents as tables of comma-separated values (RFC 4180). docs/formats/csv.md describes
// what is written.
//
// Nothing fails but what `take` throws, and for want of memory. May be called from any thread, as
// long as no other one changes the document.
namespace orvane {

// Hands the bytes of the table to `take`, in order and in pieces of limited size: a line of names,
// a line of units, and the frames from the document's first on. The cells of a marker that has no
// position, and those of a segment that does not hold the frame, or that in the world hangs from no
// root, are empty.
void PrintCsv(const TRCDocument& document, const TextTaker& take, const CsvManner& manner);
void PrintCsv(const HtrDocument& document, const TextTaker& take, const CsvManner& manner);

}  // namespace orvane
