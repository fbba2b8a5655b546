#pragma once

#include <cstddef>

#include "formats/htr/document.h"
#include "formats/trc/document.h"

// Some frames of a document alone.
//
// Nothing fails but for want of memory. May be called from any thread, as long as no other one
// changes the documents.
namespace orvane {

// Makes `target`, which is empty, what `source` is with no other frames than those from `begin` up
// to `end`: their places, counted from 0, the latter behind the last. They keep their numbers and
// all their values, gaps included, and as many are announced. A segment that holds fewer frames has
// fewer of them. REQUIRES: begin < end.
void CutFrames(const HtrDocument& source, std::size_t begin, std::size_t end, HtrDocument& target);
void CutFrames(const TRCDocument& source, std::size_t begin, std::size_t end, TRCDocument& target);

}  // namespace orvane
