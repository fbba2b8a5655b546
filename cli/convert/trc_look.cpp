#include "cli/convert/trc_look.h"

#include "formats/text/files.h"
#include "formats/trc/outline.h"
#include "inspect/check/trc_check.h"
#include "inspect/summary/trc_outline.h"

namespace cli {
namespace {

constexpr std::size_t kLinesWithRates = 3;

void TakeOutline(const orvane::TRCOutliner& outline, TrcLook& look) {
  look.frames = static_cast<std::int64_t>(outline.Frames());
  look.has_rates = outline.Lines() >= kLinesWithRates;
}

// The samples tell how many frames there are. Without any marker they tell nothing.
void CountLines(std::string_view bytes, TrcLook& look) {
  if (look.document.MarkerCount() > 0) {
    look.frames = static_cast<std::int64_t>(look.document.MarkerAt(0)->SampleCount());
    look.held = FramesHeld(look.document);
    look.has_rates = true;  // the names stand behind them
    return;
  }
  const orvane::TRCOutliner outline = orvane::OutlineTrc(bytes);
  TakeOutline(outline, look);
  if (look.refusal.empty()) look.held = FramesHeld(outline);
}

std::unique_ptr<TrcLook> LookAtLines(const std::string& path) {
  const std::optional<orvane::TRCOutliner> outline = orvane::OutlineTrcFile(path);
  if (!outline) return nullptr;
  auto look = std::make_unique<TrcLook>();
  look->header = outline->Header();
  look->refusal = look->document.ReadBytes(look->header, false);
  TakeOutline(*outline, *look);
  return look;
}

}  // namespace

std::unique_ptr<TrcLook> LookAtInput(const Conversion& conversion, const ConversionOrder& order) {
  const bool is_checked = !order.report.omitted;
  if (!is_checked && !order.cut) return LookAtLines(conversion.source);
  const std::optional<std::string> bytes = orvane::ReadFileBytes(conversion.source);
  if (!bytes) return nullptr;
  auto look = std::make_unique<TrcLook>();
  look->has_samples = true;
  look->header = orvane::TrcHeaderOf(*bytes);
  if (is_checked) {
    look->checked = orvane::CheckTrc(conversion.input, *bytes, look->document);
    look->refusal = look->checked->refusal;
  } else {
    look->refusal = look->document.ReadBytes(*bytes, false);
  }
  CountLines(*bytes, *look);
  return look;
}

}  // namespace cli
