#pragma once

#include "formats/bvh/plan.h"
#include "formats/text/text_taker.h"

// Writes what a motion file says as a BVH file. docs/formats/bvh.md describes what is written.
//
// Nothing fails but what `take` throws, and for want of memory. May be called from any thread, as
// long as no other one changes the document.
namespace orvane {

// Hands the text of the file to `take`, in pieces of limited size and with line feeds as line ends.
// Lengths stay in the document's unit. Takes time in proportion to the text. REQUIRES: the plan is
// no refusal, and its document is still there.
void PrintBvh(const BvhPlan& plan, const TextTaker& take);

}  // namespace orvane
