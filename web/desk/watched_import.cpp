#include "web/desk/watched_import.h"

#include <utility>
#include <vector>

#include "web/desk/told_report.h"

namespace web {

WatchedImport::WatchedImport(const std::string& path, host::Scene& scene,
                             const host::Settings& settings)
    : file_(cli::FileAt(path)),
      kind_(cli::KindOf(path)),
      scene_(scene),
      settings_(settings),
      measured_(scene) {}

// What the program would refuse is left to the plug-in, which has its own words for it.
void WatchedImport::Agree() {
  is_agreed_ = true;
  choices_ = cli::ChoicesOf({}, kind_, settings_);
  std::vector<orvane::FileReport> reports;
  cli::ImportManner manner;
  manner.report.gathered = &reports;
  try {
    told_ = cli::TellOfImport({file_, kind_, choices_, {}}, scene_, manner);
  } catch (const cli::Failure&) {
    told_.reset();
  }
  for (const orvane::FileReport& report : reports) TellReport("report", report);
}

void WatchedImport::Finish() {
  if (!told_) return;
  scene_.SetRecording(std::move(told_->recording));
  if (!told_->samples) return;
  measured_.Tell(host::GapManner::kHide, *told_->samples, told_->keyed, choices_,
                 told_->application);
}

}  // namespace web
