#include "cli/import/told_import.h"

#include <utility>

#include "cli/import/inspection.h"
#include "cli/import/measured_nodes.h"

namespace cli {
namespace {

using orvane::Action;
using orvane::ApplyCircumstances;
using orvane::CheckedFile;
using orvane::FileReport;

ApplyCircumstances CircumstancesOf(const ImportedFrames& frames, FileKind kind,
                                   const ImportChoices& choices, const host::Scene& scene) {
  ApplyCircumstances how;
  how.selected_only = choices.selected_only;
  how.first_frame = frames.announced.first;
  if (!choices.animation) return how;
  how.file_rate = frames.rate;
  how.scene_rate = choices.frame_rate_from_file ? frames.rate : scene.Animation().FrameRate();
  // The dialog refuses a range that reaches beyond the file, and one without frames.
  const bool is_taken = choices.range && choices.range->Count() > 0 &&
                        frames.announced.first <= choices.range->first &&
                        choices.range->last <= frames.announced.last;
  if (kind == FileKind::kHtr && is_taken) how.range_from = choices.range->first;
  return how;
}

FileReport ReportOnScene(const CheckedFile& checked, const ApplyCircumstances& how,
                         const std::optional<Application>& application) {
  if (!application) {
    return ReportOn(CheckTimes(checked.file, checked.kind, how), Action::kImport);
  }
  return ReportOn(CheckApply(checked.file, checked.kind, application->file, application->scene,
                             application->plan, how),
                  Action::kApply);
}

// What the import will make of what was seen of the file, and what is to be told of it.
ToldImport Foresee(Inspection& inspection, FileKind kind, const ImportChoices& choices,
                   const host::Scene& scene, const ImportManner& manner) {
  ToldImport told;
  SceneTime time;
  if (inspection.recording) {
    time = PlanTime(*inspection.recording, inspection.frames.rate, choices, scene, manner.time);
  }
  told.recording = std::move(time.recording);
  told.keyed = inspection.frames.keyed;
  told.marker_size = inspection.marker_size;
  told.samples = std::move(inspection.samples);
  told.turned = std::move(inspection.turned);
  if (inspection.applied) told.application = Apply(std::move(*inspection.applied), kind, scene);
  if (told.samples) {
    told.gaps = ShowGaps(manner.gaps, *told.samples, told.keyed, choices, told.application);
  }
  told.report = ReportOn(inspection.checked, choices.apply ? Action::kApply : Action::kImport,
                         {choices.frame_rate_from_file, time.is_own, inspection.asked, told.gaps});
  if (choices.turned_up) told.report = told.report.Without("trc-up-axis");
  if (!manner.report.omitted && !inspection.refusal) {
    ApplyCircumstances how = CircumstancesOf(inspection.frames, kind, choices, scene);
    how.time_change = time.change;
    told.report.Take(ReportOnScene(inspection.checked, how, told.application));
  }
  return told;
}

}  // namespace

ToldImport TellOfImport(const std::string& file, FileKind kind, const ImportChoices& choices,
                        const host::Scene& scene, const ImportManner& wishes) {
  const ReportManner& manner = wishes.report;
  Inspection inspection = Inspect(file, kind, choices, scene, kImportLess, !manner.omitted);
  ToldImport told = Foresee(inspection, kind, choices, scene, wishes);
  WriteReportFile({told.report}, manner);
  if (inspection.refusal) {
    for (const std::string_view code : inspection.refused_codes) {
      told.report = told.report.Without(code);
    }
    Tell(told.report, manner);
    throw Failure{ExitStatus::kRefused, {*inspection.refusal}};
  }
  Tell(told.report, manner);
  if (Forbids(manner, told.report)) throw ForbiddenByStrict();
  told.has_errors = told.report.Count(orvane::FindingSeverity::kError) > 0;
  told.complaints = std::move(inspection.complaints);
  return told;
}

}  // namespace cli
