#include "plugin/export_htr/export_htr.h"

#include <algorithm>
#include <limits>
#include <string>

#include "formats/htr/writer.h"
#include "formats/units/units.h"
#include "plugin/export_htr/export_root.h"
#include "plugin/export_htr/options_dialog.h"
#include "plugin/export_htr/skeleton_sampler.h"
#include "sdk/core/animation.h"
#include "sdk/core/units.h"

namespace orvane {
namespace {

constexpr FileClassTexts kTexts{
    "HTR",
    "Orvane HTR Skeletal Animation File",
    "Orvane HTR File",
    "Orvane ExportHTR",
    {"ExportHTR Error", "There is not enough memory to export the skeleton.",
     "An unexpected error ended the export."}};

}  // namespace

ExportHTR::ExportHTR(ExportHTROptions& options, MessageSink& messages, HINSTANCE module)
    : FileClass(kTexts, messages, module), options_(options) {}

int ExportHTR::DoExport(const char* name, ExpInterface* /*export_interface*/, Interface* interface,
                        int suppress_prompts, std::uint32_t /*options*/) {
  if (name == nullptr || interface == nullptr) return 0;
  return Run(name, *interface, suppress_prompts != 0) == Outcome::kFailed ? 0 : 1;
}

void ExportHTR::ForgetDocument() { document_.Clear(); }

ExportHTR::Outcome ExportHTR::Work() {
  Host().ProgressUpdate(0);
  SetFrameBounds();
  if (!ConfirmIn<ExportHTROptionsDialog>(options_)) return Outcome::kCanceled;
  if (!BuildDocument()) return Outcome::kFailed;
  Host().ProgressUpdate(90);
  if (!WriteFile()) return Outcome::kFailed;
  Host().ProgressUpdate(100);
  return Outcome::kDone;
}

// Frames that the animation range begins and ends in, towards frame 0.
void ExportHTR::SetFrameBounds() {
  const Interval range = Host().GetAnimRange();
  const int ticks_per_frame = GetTicksPerFrame();
  options_.SetFrameBounds(range.Start() / ticks_per_frame, range.End() / ticks_per_frame);
}

bool ExportHTR::BuildDocument() {
  const ExportRoot root = FindExportRoot(Host());
  if (root.node == nullptr) {
    Messages().Report(root.refusal.c_str(), "Export Error");
    return false;
  }
  document_.Clear();
  document_.SetDataFrameRate(kTicksPerSecond / GetTicksPerFrame());
  document_.SetCalibrationUnits(kMillimeters);
  if (options_.animate) document_.SetNumFrames(FrameCount());
  SkeletonSampler sampler(Host(), options_, Messages(), document_);
  if (!sampler.Sample(*root.node)) return false;
  document_.SetRotationUnits(kDegrees);
  document_.ScaleLengths(GetMasterScale(kUnitTypeMillimeters) * options_.scaleFactor);
  return true;
}

// Intended: of the frames in the dialog, even when the animation range is exported in their place;
// the file then says and holds so many of its frames.
// A range that ends before it starts has none.
std::uint32_t ExportHTR::FrameCount() const {
  const std::int64_t count = std::int64_t{options_.endFrame} - options_.startFrame + 1;
  constexpr std::int64_t kMost = std::numeric_limits<std::uint32_t>::max();
  return static_cast<std::uint32_t>(std::clamp<std::int64_t>(count, 0, kMost));
}

bool ExportHTR::WriteFile() {
  const std::string failure = WriteHtrFile(document_, FileName());
  return failure.empty() || Refuse(failure.c_str());
}

}  // namespace orvane
