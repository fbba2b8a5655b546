#include "plugin/import_htr/import_htr.h"

#include <string_view>

#include "formats/htr/reader.h"
#include "formats/units/units.h"
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

constexpr FileClassTexts kTexts{
    "HTR",
    "Orvane HTR Skeletal Animation File",
    "Orvane HTR File",
    "Orvane ImportHTR",
    {"ImportHTR Error", "There is not enough memory to import the file.",
     "An unexpected error ended the import."}};

// The name of the file without its folder and its extension.
std::string FileNamePart(std::string_view path) {
  const std::size_t slash = path.find_last_of("/\\");
  if (slash != std::string_view::npos) path.remove_prefix(slash + 1);
  return std::string(path.substr(0, path.rfind('.')));
}

}  // namespace

ImportHTR::ImportHTR(ImportHTROptions& options, MessageSink& messages, HINSTANCE module)
    : FileClass(kTexts, messages, module), options_(options) {}

int ImportHTR::DoImport(const char* name, ImpInterface* /*import_interface*/, Interface* interface,
                        int suppress_prompts) {
  if (name == nullptr || interface == nullptr) return 0;
  return Run(name, *interface, suppress_prompts == 1) == Outcome::kFailed ? 0 : 1;
}

void ImportHTR::ForgetDocument() { document_.Clear(); }

ImportHTR::Outcome ImportHTR::Work() {
  Host().ProgressUpdate(0);
  if (!ReadFile()) return Outcome::kFailed;
  ConvertUnits();
  Host().ProgressUpdate(10);

  SetFrameBounds();
  if (!ConfirmIn<ImportHTROptionsDialog>(options_)) return Outcome::kCanceled;
  if (options_.setFrameRate) SetFrameRate(document_.GetDataFrameRate());
  frame_count_ = FrameCount();
  if (!ImportMotion()) return Outcome::kFailed;

  SetAnimationRange();
  Host().ProgressUpdate(100);
  return Outcome::kDone;
}

bool ImportHTR::ReadFile() {
  const std::string failure = ReadHtrFile(document_, FileName(), true);
  if (!failure.empty()) return Refuse(failure.c_str());
  if (document_.GetScaleFactor() != 1.0) {
    Messages().Report(
        "ScaleFactor is not 1.0, this plugin does not support the ScaleFactor header variable.",
        "ImportHTR Warning");
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

std::int64_t ImportHTR::FrameCount() const {
  if (!options_.animate) return 1;
  if (!options_.range) return document_.GetNumFrames();
  return std::int64_t{options_.endFrame} - options_.startFrame + 1;
}

bool ImportHTR::ImportMotion() { return options_.apply ? ApplyToSelection() : CreateSkeleton(); }

bool ImportHTR::ApplyToSelection() {
  const ApplyTarget target = FindApplyTarget(Host(), document_);
  if (!target.refusal.empty()) {
    Messages().Report(target.refusal.c_str(), "Import Error");
    return false;
  }
  return ImportMotionOf(target.branch, *target.node);
}

bool ImportHTR::CreateSkeleton() {
  HtrSegment* root = document_.FindRootSegment();
  if (root == nullptr) return false;
  if (!HierarchyFits(*root, SegmentBudget(document_, frame_count_))) {
    return Refuse(kOverBudgetMessage);
  }
  INode* root_node = CreateGroupedSkeleton(*root);
  return root_node != nullptr && ImportMotionOf(root, *root_node);
}

// The new skeleton's root, under a dummy named after the file; null on failure or when the user
// cancelled.
INode* ImportHTR::CreateGroupedSkeleton(const HtrSegment& root) {
  INode* root_node = SkeletonCreator(Host(), options_).Create(root);
  if (root_node == nullptr) return nullptr;
  Host().ProcessPendingMessages();
  if (Host().GetCancel()) return nullptr;

  const auto half_extent =
      static_cast<float>(static_cast<double>(options_.size) * options_.scaleFactor);
  INode* dummy = CreateGroupNode(Host(), FileNamePart(FileName()), half_extent);
  if (dummy == nullptr) return nullptr;
  dummy->AttachChild(root_node, false);
  return root_node;
}

bool ImportHTR::ImportMotionOf(HtrSegment* branch, INode& node) {
  if (!options_.animate && !options_.keyBasePosition) return true;
  if (branch == nullptr) return false;
  const KeyTimes times(GetTicksPerFrame(), std::int64_t{options_.startFrame} + options_.frameOffset,
                       frame_count_);
  MotionApplier applier(Host(), options_, times, document_.GetNumSegments(),
                        SegmentBudget(document_, frame_count_));
  if (applier.Apply(node, *branch)) return true;
  if (applier.OverBudget()) Refuse(kOverBudgetMessage);
  return false;
}

// Intended: the range starts at the file's first frame even when fewer frames are imported.
void ImportHTR::SetAnimationRange() {
  if (!options_.animate || document_.GetNumFrames() < 2) return;
  const std::int64_t first = document_.GetStartFrame();
  const std::int64_t last = first + frame_count_ + options_.frameOffset - 1;
  // The base position is keyed one frame before the motion.
  const std::int64_t start = options_.keyBasePosition ? first - 1 : first;
  Host().SetAnimRange(FrameInterval(GetTicksPerFrame(), start, last));
}

}  // namespace orvane
