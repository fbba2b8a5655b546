#include "web/desk/told_losses.h"

#include <string>

#include "cli/common/failure.h"
#include "cli/export/told_export.h"
#include "cli/export/told_skins.h"
#include "plugin/resources/resource.h"
#include "web/desk/shown_choices.h"
#include "web/desk/shown_dialog.h"
#include "web/desk/told_report.h"

namespace web {
namespace {

using host::LiveDialog;

constexpr const char* kScene = "the scene";

cli::ExportChoices ChoicesIn(LiveDialog& dialog, const host::Settings& settings) {
  cli::Wishes wishes = WishesFor(dialog, {IDC_EXPORT_ANIMATION, IDC_PARENT_TRANSFORMS, IDC_OFFSET});
  AddShownRange(dialog, wishes);
  return cli::ExportChoicesOf(wishes, settings);
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
    refusal = RefusalOf(failure);
  }
  TellLosses(report, refusal);
}

}  // namespace web
