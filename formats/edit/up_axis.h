#pragma once

#include "formats/htr/document.h"
#include "formats/trc/document.h"

// Documents whose heights lie along another axis than they are taken to.
//
// Nothing fails but for want of memory. May be called from any thread, as long as no other one
// changes the documents.
namespace orvane {

// Turns `document`, whose heights lie along Z, by a quarter about X, so that they lie along Y: each
// place (x, y, z) of the world becomes (x, z, -y). Of a skeleton the segments that hang from no
// other are turned, and the rest with them; its axis of gravity is Y then.
void TurnZUp(HtrDocument& document);
void TurnZUp(TRCDocument& document);

}  // namespace orvane
