#include "web/desk/watched_import.h"

#include <utility>
#include <vector>

#include "plugin/resources/resource.h"
#include "web/desk/shown_choices.h"
#include "web/desk/shown_dialog.h"
#include "web/desk/told_report.h"

namespace web {

WatchedImport::WatchedImport(const std::string& path, host::Scene& scene,
                             const host::Settings& settings)
    : file_(cli::FileAt(path)),
      kind_(cli::KindOf(path)),
      scene_(scene),
      settings_(settings),
      measured_(scene) {}

void WatchedImport::Look(const host::LiveDesktop& desktop) {
  const bool is_htr = kind_ == cli::FileKind::kHtr;
  host::LiveDialog* const dialog = FindShown(desktop, is_htr ? IDD_IMPORT_HTR : IDD_IMPORT_TRC);
  if (dialog == nullptr) return;
  const cli::ImportChoices choices = ChoicesIn(*dialog);
  if (choices_ == choices) return;
  choices_ = choices;
  const std::string refusal = Foresee();
  TellLosses(report_, refusal);
}

void WatchedImport::Agree() {
  is_agreed_ = true;
  TellReport("report", report_);
}

void WatchedImport::Finish() {
  if (!told_) return;
  scene_.SetRecording(std::move(told_->recording));
  if (!told_->samples) return;
  measured_.Tell(host::GapManner::kHide, *told_->samples, told_->keyed, *choices_,
                 told_->application);
}

cli::ImportChoices WatchedImport::ChoicesIn(host::LiveDialog& dialog) const {
  cli::Wishes wishes = WishesFor(dialog, {IDC_ANIMATION, IDC_BASE_POSITION, IDC_SELECTED_ONLY,
                                          IDC_SET_FRAME_RATE, IDC_GLOBAL_SCALE, IDC_OFFSET});
  AddChosen(dialog, {IDC_CREATE, IDC_APPLY}, wishes);
  AddShownRange(dialog, wishes);
  return cli::ChoicesOf(wishes, kind_, settings_);
}

// What the program would refuse is left to the plug-in, which has its own words for it.
std::string WatchedImport::Foresee() {
  std::vector<orvane::FileReport> reports;
  cli::ImportManner manner;
  manner.report.gathered = &reports;
  std::string refusal;
  told_.reset();
  try {
    told_ = cli::TellOfImport({file_, kind_, *choices_, {}}, scene_, manner);
  } catch (const cli::Failure& failure) {
    refusal = RefusalOf(failure);
  }
  report_ = {};
  for (const orvane::FileReport& report : reports) report_.Take(report);
  const bool is_told = report_.Count(orvane::FindingSeverity::kError) > 0;
  return is_told ? "" : refusal;
}

}  // namespace web
