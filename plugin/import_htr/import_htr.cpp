#include "plugin/import_htr/import_htr.h"

#include <string_view>

#include "formats/htr/reader.h"
#include "plugin/exchange/attempt.h"
#include "plugin/exchange/failure_report.h"
#include "plugin/exchange/host_modes.h"
#include "plugin/exchange/progress_bar.h"
#include "plugin/import_htr/apply_target.h"
#include "plugin/import_htr/import_budget.h"
#include "plugin/import_htr/motion_applier.h"
#include "plugin/import_htr/options_dialog.h"
#include "plugin/import_htr/scene_nodes.h"
#include "plugin/import_htr/skeleton_creator.h"
#include "sdk/core/animation.h"
#include "sdk/core/units.h"

namespace orvane {
namespace {

constexpr char kImportHTRError[] = "ImportHTR Error";
constexpr FailureTexts kFailure{kImportHTRError, "There is not enough memory to import the file.",
                                "An unexpected error ended the import."};
constexpr char kImportHTRWarning[] = "ImportHTR Warning";
constexpr char kImportError[] = "Import Error";

constexpr std::uint32_t kMillimeters = 0;

// The name of the file without its folder and its extension.
std::string FileNamePart(std::string_view path) {
  const std::size_t slash = path.find_last_of("/\\");
  if (slash != std::string_view::npos) path.remove_prefix(slash + 1);
  return std::string(path.substr(0, path.rfind('.')));
}

}  // namespace

int ImportHTR::DoImport(const char* name, ImpInterface* import_interface, Interface* interface,
                        int suppress_prompts) {
  if (name == nullptr || interface == nullptr) return 0;
  try {
    file_name_ = name;
    import_interface_ = import_interface;
    interface_ = interface;
    quiet_ = suppress_prompts == 1;
    return Import();
  } catch (...) {
    Attempt([this] { document_.Clear(); });
    ReportFailure(messages_, kFailure);
    return 0;
  }
}

// Intended: a failure keeps the document and leaves the host's modes suspended, and cancelling
// leaves them suspended too.
int ImportHTR::Import() {
  SuspendHostModes(*interface_);
  Outcome outcome = Outcome::kFailed;
  {
    const OpenProgressBar progress(*interface_, "Orvane ImportHTR");
    outcome = Work();
  }
  if (outcome == Outcome::kFailed) return 0;
  document_.Clear();
  if (outcome == Outcome::kDone) ResumeHostModes();
  return 1;
}

ImportHTR::Outcome ImportHTR::Work() {
  interface_->ProgressUpdate(0);
  if (!ReadFile()) return Outcome::kFailed;
  ConvertUnits();
  interface_->ProgressUpdate(10);

  SetFrameBounds();
  if (!ConfirmOptions()) return Outcome::kCancelled;
  if (options_.setFrameRate) SetFrameRate(document_.GetDataFrameRate());
  frame_count_ = FrameCount();
  if (!ImportMotion()) return Outcome::kFailed;

  SetAnimationRange();
  interface_->ProgressUpdate(100);
  return Outcome::kDone;
}

bool ImportHTR::ReadFile() {
  const std::string failure = ReadHtrFile(document_, file_name_.data(), true);
  if (!failure.empty()) return Refuse(failure.c_str(), kImportHTRError);
  if (document_.GetScaleFactor() != 1.0) {
    messages_.Report(
        "ScaleFactor is not 1.0, this plugin does not support the ScaleFactor header variable.",
        kImportHTRWarning);
  }
  return true;
}

// Brings all lengths to system units.
void ImportHTR::ConvertUnits() {
  document_.ConvertCalibrationUnits(kMillimeters);
  const double units_per_millimeter = 1.0 / GetMasterScale(kUnitTypeMillimeters);
  if (units_per_millimeter != 1.0) document_.ScaleLengths(units_per_millimeter);
}

void ImportHTR::SetFrameBounds() {
  const std::int32_t first = document_.GetStartFrame();
  options_.SetFrameBounds(first, std::int64_t{first} + document_.GetNumFrames() - 1);
}

bool ImportHTR::ConfirmOptions() {
  if (quiet_) return true;
  return ImportHTROptionsDialog(options_, messages_, interface_->GetSkelderHWnd(), module_).Show();
}

std::int64_t ImportHTR::FrameCount() const {
  if (!options_.animate) return 1;
  if (!options_.range) return document_.GetNumFrames();
  return std::int64_t{options_.endFrame} - options_.startFrame + 1;
}

bool ImportHTR::ImportMotion() { return options_.apply ? ApplyToSelection() : CreateSkeleton(); }

bool ImportHTR::ApplyToSelection() {
  const ApplyTarget target = FindApplyTarget(*interface_, document_);
  if (!target.refusal.empty()) return Refuse(target.refusal.c_str(), kImportError);
  return ImportMotionOf(target.branch, *target.node);
}

bool ImportHTR::CreateSkeleton() {
  HtrSegment* root = document_.FindRootSegment();
  if (root == nullptr) return false;
  if (!HierarchyFits(*root, SegmentBudget(document_, frame_count_))) {
    return Refuse(kOverBudgetMessage, kImportHTRError);
  }
  INode* root_node = CreateGroupedSkeleton(*root);
  return root_node != nullptr && ImportMotionOf(root, *root_node);
}

// The new skeleton's root, under a dummy named after the file; null on failure or when the user
// cancelled.
INode* ImportHTR::CreateGroupedSkeleton(const HtrSegment& root) {
  INode* root_node = SkeletonCreator(*interface_, options_).Create(root);
  if (root_node == nullptr) return nullptr;
  interface_->ProcessPendingMessages();
  if (interface_->GetCancel()) return nullptr;

  const auto half_extent =
      static_cast<float>(static_cast<double>(options_.size) * options_.scaleFactor);
  INode* dummy = CreateGroupNode(*interface_, FileNamePart(file_name_.data()), half_extent);
  if (dummy == nullptr) return nullptr;
  dummy->AttachChild(root_node, false);
  return root_node;
}

bool ImportHTR::ImportMotionOf(HtrSegment* branch, INode& node) {
  if (!options_.animate && !options_.keyBasePosition) return true;
  if (branch == nullptr) return false;
  const KeyTimes times(GetTicksPerFrame(), std::int64_t{options_.startFrame} + options_.frameOffset,
                       frame_count_);
  MotionApplier applier(*interface_, options_, times, document_.GetNumSegments(),
                        SegmentBudget(document_, frame_count_));
  if (applier.Apply(node, *branch)) return true;
  if (applier.OverBudget()) Refuse(kOverBudgetMessage, kImportHTRError);
  return false;
}

// Intended: the range starts at the file's first frame even when fewer frames are imported.
void ImportHTR::SetAnimationRange() {
  if (!options_.animate || document_.GetNumFrames() < 2) return;
  const std::int64_t first = document_.GetStartFrame();
  const std::int64_t last = first + frame_count_ + options_.frameOffset - 1;
  // The base position is keyed one frame before the motion.
  const std::int64_t start = options_.keyBasePosition ? first - 1 : first;
  interface_->SetAnimRange(FrameInterval(GetTicksPerFrame(), start, last));
}

// Shows why the import ends here.
bool ImportHTR::Refuse(const char* message, const char* title) {
  messages_.Report(message, title);
  return false;
}

}  // namespace orvane
