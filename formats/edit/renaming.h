#pragma once

#include <map>
#include <string>
#include <string_view>

#include "formats/htr/document.h"
#include "formats/trc/document.h"

// Other names for segments and markers.
//
// Nothing fails but for want of memory. May be called from any thread, as long as no other one
// changes the documents.
namespace orvane {

// Why no file would give back a segment, or a marker, of the name `name`, in words that follow on
// it; null when one does.
[[nodiscard]] const char* WhyNoSegmentName(std::string_view name);
[[nodiscard]] const char* WhyNoMarkerName(std::string_view name);

// Gives each segment or marker of `document` whose name is a key of `names` the name that it has
// there, all at once, so that two may change theirs. Names are compared with the case of their
// letters; keys that nothing has are passed over.
//
// Returns an empty text, or, with nothing changed, why not, as a text about the file: two would
// have one name, or a file could not hold a name.
[[nodiscard]] std::string Rename(HtrDocument& document,
                                 const std::map<std::string, std::string>& names);
[[nodiscard]] std::string Rename(TRCDocument& document,
                                 const std::map<std::string, std::string>& names);

}  // namespace orvane
