#include "cli/import/told_import.h"

#include <algorithm>
#include <utility>

#include "cli/common/report.h"
#include "cli/import/asked_frames.h"
#include "cli/import/inspection.h"
#include "cli/import/measured_nodes.h"
#include "inspect/report/finding_words.h"
#include "inspect/report/frame_check.h"

namespace cli {
namespace {

using orvane::Action;
using orvane::ApplyCircumstances;
using orvane::CheckedFile;
using orvane::FileReport;

// The frames per second at which the scene plays motion that has others in the file; nothing where
// those play, and in a scene without nodes, which has nothing to keep its own for.
std::optional<double> OtherRate(const ImportedFrames& frames, const ImportChoices& choices,
                                const host::Scene& scene, bool is_own_time) {
  const int ticks = scene.Animation().TicksPerFrame();
  const bool is_same = is_own_time || host::TicksPerFrame(frames.rate) == ticks;
  if (choices.frame_rate_from_file || is_same || scene.Root().Children().empty()) return {};
  return static_cast<double>(kTicksPerSecond) / ticks;
}

ApplyCircumstances HowApplied(const ImportedFrames& frames, FileKind kind,
                              const ImportChoices& choices, const host::Scene& scene,
                              const std::optional<host::Rate>& file_rate, const SceneTime& time) {
  ApplyCircumstances how;
  how.time_change = time.change;
  how.selected_only = choices.selected_only;
  how.first_frame = frames.announced.first;
  if (!choices.animation) return how;
  how.file_rate = file_rate ? Value(*file_rate) : static_cast<double>(frames.rate);
  how.scene_rate = OtherRate(frames, choices, scene, time.is_own);
  if (kind == FileKind::kHtr && choices.range && IsRangeTaken(frames, choices)) {
    how.range_from = choices.range->first;
  }
  return how;
}

bool IsOfOtherKind(const FileReport& report) {
  return std::any_of(report.findings.begin(), report.findings.end(),
                     [](const auto& finding) { return finding.code.ends_with("-other-kind"); });
}

bool Has(const FileReport& report, std::string_view code) {
  return std::any_of(report.findings.begin(), report.findings.end(),
                     [code](const auto& finding) { return finding.code == code; });
}

// What is found in the file and the scene together.
FileReport ReportOnScene(const Inspection& inspection, const ImportOrder& order,
                         const host::Scene& scene, const SceneTime& time,
                         const std::optional<Application>& application) {
  const ImportedFrames& frames = inspection.frames;
  const Action action = order.choices.apply ? Action::kApply : Action::kImport;
  const auto file_rate = inspection.recording ? inspection.recording->rate : std::nullopt;
  const ApplyCircumstances how =
      HowApplied(frames, order.kind, order.choices, scene, file_rate, time);
  const std::string& name = inspection.checked.file;
  const std::string_view kind = inspection.checked.kind;
  FileReport report = ReportOn(application ? CheckApply(name, kind, application->file,
                                                        application->scene, application->plan, how)
                                           : CheckImport(name, kind, how),
                               action);
  report.Take(ReportOn(
      CheckFrames(name, kind, CircumstancesOf(frames, order.choices, order.kind, scene)), action));
  return report;
}

FileReport ReportOnSelection(const CheckedFile& checked, const ImportOrder& order,
                             const host::Scene& scene) {
  const Action action = order.choices.apply ? Action::kApply : Action::kImport;
  return ReportOn(CheckSelection(checked.file, checked.kind, action, order.unknown_names,
                                 !scene.Selection().empty()),
                  action);
}

// Whether every number of the file comes into the scene.
bool IsOfAll(const ImportChoices& choices) {
  return choices.animation && !choices.apply && !choices.range && !choices.cut &&
         choices.scale == 1.0;
}

// What the import will make of what was seen of the file, and what is to be told of it; of the file
// and the scene together in `of_scene`, too.
ToldImport Foresee(Inspection& inspection, const ImportOrder& order, const host::Scene& scene,
                   const ImportManner& manner, FileReport& of_scene) {
  const ImportChoices& choices = order.choices;
  ToldImport told;
  SceneTime time;
  if (inspection.recording) {
    time = PlanTime(*inspection.recording, inspection.frames.rate, choices, scene, manner.time);
  }
  told.recording = std::move(time.recording);
  told.keyed = inspection.frames.keyed;
  told.keeps_range = choices.animation && inspection.frames.announced.Count() == 1;
  told.marker_size = inspection.marker_size;
  told.samples = std::move(inspection.samples);
  told.changed = std::move(inspection.changed);
  if (inspection.applied) {
    told.application = Apply(std::move(*inspection.applied), order.kind, scene);
  }
  if (told.samples) {
    told.gaps = ShowGaps(manner.gaps, *told.samples, told.keyed, choices, told.application);
  }
  told.report = ReportOn(inspection.checked, choices.apply ? Action::kApply : Action::kImport,
                         {.rate = choices.frame_rate_from_file,
                          .own_time = time.is_own,
                          .frames = inspection.asked,
                          .all_numbers = IsOfAll(choices),
                          .gaps = told.gaps});
  if (choices.turned_up) told.report = told.report.Without("trc-up-axis");
  if (!manner.report.omitted && !inspection.refusal) {
    of_scene = ReportOnScene(inspection, order, scene, time, told.application);
    of_scene.Take(ReportOnSelection(inspection.checked, order, scene));
    // What a range asks for is why frames are missed that the header announces.
    if (Has(of_scene, "apply-range-partly")) told.report = told.report.Without("trc-frame-count");
    told.report.Take(of_scene);
  }
  return told;
}

}  // namespace

ToldImport TellOfImport(const ImportOrder& order, const host::Scene& scene,
                        const ImportManner& manner) {
  const ReportManner& telling = manner.report;
  Inspection inspection =
      Inspect(order.file, order.kind, order.choices, scene, kImportLess, !telling.omitted);
  FileReport of_scene;
  ToldImport told = Foresee(inspection, order, scene, manner, of_scene);
  WriteReportFile({told.report}, telling);
  if (inspection.refusal) {
    const Complaint refusal = WithCode(*inspection.refusal, told.report, inspection.refused_codes);
    for (const std::string_view code : inspection.refused_codes) {
      told.report = told.report.Without(code);
    }
    Tell(told.report, telling);
    throw Failure{ExitStatus::kRefused, {refusal}};
  }
  Tell(told.report, telling);
  // The plug-in would not see the errors, or has nobody for such a file.
  if (of_scene.Count(orvane::FindingSeverity::kError) > 0 || IsOfOtherKind(told.report)) {
    throw RefusedForErrors(telling, told.report, {});
  }
  if (Forbids(telling, told.report)) throw ForbiddenByStrict(telling, told.report);
  told.has_errors = told.report.Count(orvane::FindingSeverity::kError) > 0;
  told.can_be_saved = std::none_of(
      told.report.findings.begin(), told.report.findings.end(), [](const auto& finding) {
        return finding.severity == orvane::FindingSeverity::kError &&
               orvane::FindMeaning(finding.code)->concern == orvane::Concern::kSaving;
      });
  told.complaints = std::move(inspection.complaints);
  return told;
}

}  // namespace cli
