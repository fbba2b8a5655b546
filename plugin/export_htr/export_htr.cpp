#include "plugin/export_htr/export_htr.h"

#include <algorithm>
#include <limits>
#include <string>

#include "formats/htr/writer.h"
#include "plugin/exchange/attempt.h"
#include "plugin/exchange/failure_report.h"
#include "plugin/exchange/host_modes.h"
#include "plugin/exchange/progress_bar.h"
#include "plugin/export_htr/export_root.h"
#include "plugin/export_htr/options_dialog.h"
#include "plugin/export_htr/skeleton_sampler.h"
#include "sdk/core/animation.h"
#include "sdk/core/units.h"

namespace orvane {
namespace {

constexpr char kExportHTRError[] = "ExportHTR Error";
constexpr FailureTexts kFailure{kExportHTRError,
                                "There is not enough memory to export the skeleton.",
                                "An unexpected error ended the export."};

constexpr std::uint32_t kMillimeters = 0;
constexpr std::uint32_t kDegrees = 0;

}  // namespace

int ExportHTR::DoExport(const char* name, ExpInterface* /*export_interface*/, Interface* interface,
                        int suppress_prompts, std::uint32_t /*options*/) {
  if (name == nullptr || interface == nullptr) return 0;
  try {
    file_name_ = name;
    interface_ = interface;
    return Export(suppress_prompts != 0);
  } catch (...) {
    Attempt([this] { document_.Clear(); });
    ReportFailure(messages_, kFailure);
    return 0;
  }
}

// Intended: a failure keeps the document and leaves the host's modes suspended, and cancelling
// leaves them suspended too.
int ExportHTR::Export(bool suppress_prompts) {
  SuspendHostModes(*interface_);
  Outcome outcome = Outcome::kFailed;
  {
    const OpenProgressBar progress(*interface_, "Orvane ExportHTR");
    outcome = Work(suppress_prompts);
  }
  if (outcome == Outcome::kFailed) return 0;
  document_.Clear();
  if (outcome == Outcome::kDone) ResumeHostModes();
  return 1;
}

ExportHTR::Outcome ExportHTR::Work(bool suppress_prompts) {
  interface_->ProgressUpdate(0);
  SetFrameBounds();
  if (!suppress_prompts && !ConfirmOptions()) return Outcome::kCancelled;
  if (!BuildDocument()) return Outcome::kFailed;
  interface_->ProgressUpdate(90);
  if (!WriteFile()) return Outcome::kFailed;
  interface_->ProgressUpdate(100);
  return Outcome::kDone;
}

// Frames that the animation range begins and ends in, towards frame 0.
void ExportHTR::SetFrameBounds() {
  const Interval range = interface_->GetAnimRange();
  const int ticks_per_frame = GetTicksPerFrame();
  options_.SetFrameBounds(range.Start() / ticks_per_frame, range.End() / ticks_per_frame);
}

bool ExportHTR::ConfirmOptions() {
  return ExportHTROptionsDialog(options_, messages_, interface_->GetSkelderHWnd(), module_).Show();
}

bool ExportHTR::BuildDocument() {
  const ExportRoot root = FindExportRoot(*interface_);
  if (root.node == nullptr) {
    messages_.Report(root.refusal.c_str(), "Export Error");
    return false;
  }
  document_.Clear();
  document_.SetDataFrameRate(kTicksPerSecond / GetTicksPerFrame());
  document_.SetCalibrationUnits(kMillimeters);
  if (options_.animate) document_.SetNumFrames(FrameCount());
  SkeletonSampler sampler(*interface_, options_, messages_, document_);
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
  const std::string failure = WriteHtrFile(document_, file_name_.data());
  if (failure.empty()) return true;
  messages_.Report(failure.c_str(), kExportHTRError);
  return false;
}

}  // namespace orvane
