#include "cli/convert/trc_look.h"

#include <utility>

#include "cli/common/input_source.h"
#include "formats/trc/outline.h"
#include "inspect/check/trc_look_over.h"
#include "inspect/summary/trc_outline.h"

namespace cli {
namespace {

constexpr std::size_t kLinesWithRates = 3;

void TakeOutline(const orvane::TRCOutliner& outline, TrcLook& look) {
  look.frames = static_cast<std::int64_t>(outline.Frames());
  look.has_rates = outline.Lines() >= kLinesWithRates;
}

// Without any marker the samples tell nothing.
void CountLines(const InputFile& file, TrcLook& look) {
  if (look.document.MarkerCount() > 0) {
    look.frames = static_cast<std::int64_t>(look.samples->Frames());
    const std::int64_t first = look.document.FirstFrame();
    look.held = {first, first + look.frames - 1};
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
  const auto open = [&file] { return std::make_unique<InputSource>(file); };
  auto [checked, samples] = orvane::LookOverTrc(file.name, open, look->document);
  look->samples = std::move(samples);
  look->refusal = checked.refusal;
  if (is_checked) look->checked = std::move(checked);
  if (!order.mapping.empty()) look->header = HeaderOf(file);
  CountLines(file, *look);
  return look;
}

}  // namespace cli
