#pragma once

#include "formats/c3d/plan.h"
#include "formats/text/text_taker.h"

// Writes the markers of a document as a C3D file. docs/formats/c3d.md describes what is written.
//
// Nothing fails but what `take` throws, and for want of memory. May be called from any thread, as
// long as no other one changes the document.
namespace orvane {

// Hands the bytes of the file to `take`, in pieces of limited size. Lengths stay in the document's
// unit. REQUIRES: the plan is no refusal, and its document is still there.
void PrintC3d(const C3dPlan& plan, const TextTaker& take);

}  // namespace orvane
