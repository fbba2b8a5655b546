#include "cli/convert/trc_look.h"

#include "cli/common/input_source.h"
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
void CountLines(const InputFile& file, TrcLook& look) {
  if (look.document.MarkerCount() > 0) {
    look.held = FramesHeld(look.document);
    look.frames = look.held.Count();
    look.has_rates = true;  // the names stand behind them
    return;
  }
  const std::optional<orvane::TRCOutliner> outline = orvane::OutlineTrcFile(file.path);
  if (!outline) return;
  TakeOutline(*outline, look);
  if (look.refusal.empty()) look.held = FramesHeld(*outline);
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

std::string HeaderOf(const InputFile& file) {
  InputSource source(file);
  return orvane::TrcHeaderOf(source);
}

}  // namespace

std::unique_ptr<TrcLook> LookAtInput(const Conversion& conversion, const ConversionOrder& order) {
  const bool is_checked = !order.report.omitted;
  if (!is_checked && !order.cut) return LookAtLines(conversion.source);
  const InputFile file = conversion.File();
  auto look = std::make_unique<TrcLook>();
  look->has_samples = true;
  look->header = HeaderOf(file);
  InputSource source(file);
  if (is_checked) {
    look->checked = orvane::CheckTrc(file.name, source, look->document);
    look->refusal = look->checked->refusal;
  } else {
    look->refusal = look->document.ReadFrom(source, false);
  }
  CountLines(file, *look);
  return look;
}

}  // namespace cli
