#pragma once

#include <set>
#include <string>

#include "formats/htr/document.h"
#include "formats/trc/document.h"

// Some segments or markers of a document alone. Names are compared with the case of their letters;
// those that nothing has are passed over.
//
// Nothing fails but for want of memory. May be called from any thread, as long as no other one
// changes the documents.
namespace orvane {

// Makes `target`, which is empty, what `source` is with no other segments than those of `names` and
// all that they hang from: without those, none would be where it is.
void SelectSegments(const HtrDocument& source, const std::set<std::string>& names,
                    HtrDocument& target);

// The same with no other markers than those of `names`, in the order of `source`.
void SelectMarkers(const TRCDocument& source, const std::set<std::string>& names,
                   TRCDocument& target);

}  // namespace orvane
