#pragma once

#include <cstddef>

#include "formats/htr/document.h"
#include "formats/trc/document.h"

// Documents as their own files could say them, so that no reader wonders.
//
// Nothing fails but for want of memory. May be called from any thread, as long as no other one
// changes the documents.
namespace orvane {

// Makes every segment of `document` a root that has no parent, as a file says of it, and announces
// as many frames as the longest segment holds.
void Tidy(HtrDocument& document);

// How many frames of `document` count: all, but for those at the end in which no marker has a
// position, as far as the header announces none of them.
[[nodiscard]] std::size_t FramesThatCount(const TRCDocument& document);

}  // namespace orvane
