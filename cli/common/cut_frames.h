#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/common/failure.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "inspect/counts/frame_span.h"

// The flag --cut: some frames of a file in the place of all, by the numbers that `orvane info`
// shows of them.

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace cli {

// Adds the flag to `verb`, which sets `asked`. Returns the option.
CLI::Option* AddCutFlag(CLI::App& verb, std::optional<orvane::FrameSpan>& asked);

// The `bytes` of `file`, which `document` has been read from, with no other frames than `frames`.
// Throws a Failure about the file when it cannot be cut. REQUIRES: it has all of these.
[[nodiscard]] std::string CutOut(const std::string& file, std::string_view bytes,
                                 const orvane::HtrDocument& document,
                                 const orvane::FrameSpan& frames);
[[nodiscard]] std::string CutOut(const std::string& file, std::string_view bytes,
                                 const orvane::TRCDocument& document,
                                 const orvane::FrameSpan& frames);

// That `file` has none of the frames that are `asked` for, but those that are `held`.
[[nodiscard]] Complaint ComplainAboutCut(const std::string& file, const orvane::FrameSpan& asked,
                                         const orvane::FrameSpan& held);

}  // namespace cli
