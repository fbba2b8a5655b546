#include "plugin/import_trc/import_trc.h"

#include <cstdint>
#include <string>

#include "formats/units/units.h"
#include "plugin/import_trc/marker_cloud.h"
#include "plugin/import_trc/options_dialog.h"
#include "sdk/core/units.h"

namespace orvane {
namespace {

constexpr FileClassTexts kTexts{
    "TRC",
    "Orvane TRC Optical Marker Tracking File",
    "Orvane TRC File",
    "Orvane ImportTRC",
    {"ImportTRC Error", "There is not enough memory to import the file.",
     "An unexpected error ended the import."}};

}  // namespace

ImportTRC::ImportTRC(ImportTRCOptions& options, MessageSink& messages, HINSTANCE module)
    : FileClass(kTexts, messages, module), options_(options) {}

int ImportTRC::DoImport(const char* name, ImpInterface* /*import_interface*/, Interface* interface,
                        int suppress_prompts) {
  if (name == nullptr || interface == nullptr) return 0;
  (void)Run(name, *interface, suppress_prompts == 1);
  return 1;
}

void ImportTRC::ForgetDocument() { document_.Reset(); }

ImportTRC::Outcome ImportTRC::Work() {
  Host().ProgressUpdate(0);
  if (!ReadFile()) return Outcome::kFailed;
  ConvertUnits();
  Host().ProgressUpdate(10);

  SetFrameBounds();
  if (!ConfirmIn<ImportTRCOptionsDialog>(options_)) return Outcome::kCanceled;
  if (!MarkerCloud(Host(), options_, document_, Messages()).Build()) return Outcome::kFailed;
  Host().ProgressUpdate(100);
  return Outcome::kDone;
}

bool ImportTRC::ReadFile() {
  const std::string failure = document_.Read(FileName(), false);
  return failure.empty() || Refuse(failure.c_str());
}

// Brings all positions to system units.
void ImportTRC::ConvertUnits() {
  document_.ConvertUnits(static_cast<std::int32_t>(kMillimeters));
  const double units_per_millimeter = 1.0 / GetMasterScale(kUnitTypeMillimeters);
  if (units_per_millimeter != 1.0) document_.Scale(units_per_millimeter);
}

void ImportTRC::SetFrameBounds() {
  const std::int32_t first = document_.FirstFrame();
  options_.SetFrameBounds(first, std::int64_t{first} - 1 + document_.NumFrames());
}

}  // namespace orvane
