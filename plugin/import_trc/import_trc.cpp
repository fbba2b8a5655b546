#include "plugin/import_trc/import_trc.h"

#include <cstdint>
#include <string>

#include "plugin/exchange/attempt.h"
#include "plugin/exchange/failure_report.h"
#include "plugin/exchange/host_modes.h"
#include "plugin/exchange/progress_bar.h"
#include "plugin/import_trc/marker_cloud.h"
#include "plugin/import_trc/options_dialog.h"
#include "sdk/core/units.h"

namespace orvane {
namespace {

constexpr char kImportTRCError[] = "ImportTRC Error";

constexpr FailureTexts kFailure{kImportTRCError, "There is not enough memory to import the file.",
                                "An unexpected error ended the import."};

constexpr std::int32_t kMillimeters = 0;

}  // namespace

int ImportTRC::DoImport(const char* name, ImpInterface* import_interface, Interface* interface,
                        int suppress_prompts) {
  if (name == nullptr || interface == nullptr) return 0;
  try {
    file_name_ = name;
    import_interface_ = import_interface;
    interface_ = interface;
    quiet_ = suppress_prompts == 1;
    Import();
  } catch (...) {
    Attempt([this] { document_.Reset(); });
    ReportFailure(messages_, kFailure);
  }
  return 1;
}

// Intended: only an import that is done resumes the host's modes. A failure keeps the document,
// which the next import resets.
void ImportTRC::Import() {
  SuspendHostModes(*interface_);
  {
    const OpenProgressBar progress(*interface_, "Orvane ImportTRC");
    if (!Work()) return;
  }
  document_.Reset();
  ResumeHostModes();
}

bool ImportTRC::Work() {
  interface_->ProgressUpdate(0);
  if (!ReadFile()) return false;
  ConvertUnits();
  interface_->ProgressUpdate(10);

  SetFrameBounds();
  if (!ConfirmOptions()) {
    document_.Reset();
    return false;
  }
  if (!MarkerCloud(*interface_, options_, document_, messages_).Build()) return false;
  interface_->ProgressUpdate(100);
  return true;
}

bool ImportTRC::ReadFile() {
  const std::string failure = document_.Read(file_name_.data(), false);
  if (failure.empty()) return true;
  messages_.Report(failure.c_str(), kImportTRCError);
  return false;
}

// Brings all positions to system units.
void ImportTRC::ConvertUnits() {
  document_.ConvertUnits(kMillimeters);
  const double units_per_millimeter = 1.0 / GetMasterScale(kUnitTypeMillimeters);
  if (units_per_millimeter != 1.0) document_.Scale(units_per_millimeter);
}

void ImportTRC::SetFrameBounds() {
  const std::int32_t first = document_.FirstFrame();
  options_.SetFrameBounds(first, std::int64_t{first} - 1 + document_.NumFrames());
}

bool ImportTRC::ConfirmOptions() {
  if (quiet_) return true;
  return ImportTRCOptionsDialog(options_, messages_, interface_->GetSkelderHWnd(), module_).Show();
}

}  // namespace orvane
