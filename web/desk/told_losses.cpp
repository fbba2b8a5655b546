#include "web/desk/told_losses.h"

#include <string>

#include "cli/common/failure.h"
#include "cli/export/told_export.h"
#include "cli/export/told_skins.h"
#include "plugin/resources/resource.h"
#include "web/desk/shown_dialog.h"
#include "web/desk/told.h"
#include "web/desk/told_report.h"

namespace web {
namespace {

using host::LiveDialog;

constexpr const char* kScene = "the scene";

// What the person would have to wish for to find the control as he sees it.
void AddWish(LiveDialog& dialog, int control, cli::Wishes& wishes) {
  const host::OpenControl* const shown = dialog.dialog.Find(control);
  if (shown == nullptr) return;
  const host::DialogControl& state = shown->state;
  wishes.push_back({cli::ControlWish::Kind::kText, control, "", state.text, state.checked, {}});
}

cli::ExportChoices ChoicesIn(LiveDialog& dialog, const host::Settings& settings) {
  cli::Wishes wishes;
  for (const int control : {IDC_EXPORT_ANIMATION, IDC_PARENT_TRANSFORMS, IDC_OFFSET}) {
    AddWish(dialog, control, wishes);
  }
  const host::OpenControl* const range = dialog.dialog.Find(IDC_RANGE);
  if (range != nullptr && range->state.checked) {
    for (const int control : {IDC_FROM, IDC_TO}) AddWish(dialog, control, wishes);
  }
  return cli::ExportChoicesOf(wishes, settings);
}

// What the program would not do, and what helps.
std::string WordsOf(const cli::Failure& failure) {
  std::string words;
  for (const cli::Complaint& complaint : failure.complaints) {
    words += (words.empty() ? "" : " ") + complaint.text + ".";
    if (!complaint.advice.empty()) words += " " + complaint.advice;
  }
  return words;
}

void TellLosses(const orvane::FileReport& report, const std::string& refusal) {
  Telling telling("losses");
  WriteToldFindings(telling.Json(), report);
  cli::WriteText(telling.Json(), "refusal", refusal);
  telling.Send();
}

}  // namespace

void ToldLosses::Update(const host::LiveDesktop& desktop, const host::Settings& settings,
                        const host::Scene& scene, const host::gltf::SkinReading& reading) {
  LiveDialog* const dialog = FindShown(desktop, IDD_EXPORT_HTR);
  if (dialog == nullptr) return told_.reset();
  const cli::ExportChoices choices = ChoicesIn(*dialog, settings);
  if (told_ == choices) return;
  told_ = choices;
  orvane::FileReport report;
  std::string refusal;
  try {
    report = cli::ReportOnExport(kScene, scene, choices, {});
    report.Take(cli::ReportOnSkins(kScene, scene, reading));
  } catch (const cli::Failure& failure) {
    refusal = WordsOf(failure);
  }
  TellLosses(report, refusal);
}

}  // namespace web
