#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/convert/conversion.h"
#include "cli/convert/conversion_order.h"
#include "inspect/counts/frame_span.h"

// What a conversion would make of the markers of its files, found out without converting them.

namespace cli {

struct MarkerFate {
  std::string name;
  std::optional<std::string> written_as;  // nothing: dropped
};

struct ConversionPreview {
  const Conversion* conversion = nullptr;
  std::vector<MarkerFate> markers;
  std::optional<orvane::FrameSpan> frames{};  // that are cut out; nothing: all are taken
};

// Reads the headers of the inputs that are planned, notes in `conversions` which of them the reader
// refuses and which would be empty, and looks the names up in the mapping of `order`. The previews
// refer to `conversions`. Throws a Failure when the mapping cannot be read, and when the user
// interrupts.
[[nodiscard]] std::vector<ConversionPreview> PreviewConversions(
    std::vector<Conversion>& conversions, const ConversionOrder& order);

void PrintPreviewPage(const std::vector<ConversionPreview>& previews, std::ostream& out);
void PrintPreviewJson(const std::vector<ConversionPreview>& previews,
                      const std::optional<orvane::FileReport>& mapping, std::ostream& out);

}  // namespace cli
