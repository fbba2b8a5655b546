#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/check/findings.h"
#include "inspect/check/trc_parts.h"
#include "inspect/check/trc_samples.h"
#include "inspect/check/trc_widths.h"
#include "inspect/summary/subject.h"

// What is told of the frames of a TRC file when all have been read: lines that are narrower than
// the others, and positions that nothing can have. Nothing fails but for want of memory.

namespace orvane::trc {

// Of frames that have cells for all of so many markers, and fewer than the others.
void CheckNarrowFrames(const TrcWidths& widths, std::int64_t markers, FindingList& findings);

// `document` has markers, `markers` are what their samples come to, `subject` is who or what moves,
// and `parts` are those of its file.
void CheckPositions(const TRCDocument& document, const std::vector<MarkerSamples>& markers,
                    const std::optional<Subject>& subject, const TrcParts& parts,
                    FindingList& findings);

}  // namespace orvane::trc
