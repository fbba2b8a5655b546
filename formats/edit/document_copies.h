#pragma once

#include <cstddef>
#include <vector>

#include "formats/htr/document.h"
#include "formats/trc/document.h"

// New documents that are made of others. Belongs to the edits.
namespace orvane {

// The indices of all segments or markers, from 0.
[[nodiscard]] std::vector<std::size_t> AllOf(const HtrDocument& document);
[[nodiscard]] std::vector<std::size_t> AllOf(const TRCDocument& document);

// Makes `target`, which is empty, what `source` is without its frames, of the segments or markers
// alone whose indices are `kept`, in rising order: header, names, base positions, and the links
// between those that are kept.
void CopyWithoutFrames(const HtrDocument& source, const std::vector<std::size_t>& kept,
                       HtrDocument& target);
void CopyWithoutFrames(const TRCDocument& source, const std::vector<std::size_t>& kept,
                       TRCDocument& target);

// Appends the frames from `begin` up to `end` of `source` to `target`, as far as there are so many.
void AppendFrames(const HtrSegment& source, std::size_t begin, std::size_t end, HtrSegment& target);
void AppendFrames(const TRCMarker& source, std::size_t begin, std::size_t end, TRCMarker& target);

}  // namespace orvane
