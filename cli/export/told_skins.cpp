#include "cli/export/told_skins.h"

#include "inspect/report/skin_check.h"

namespace cli {

orvane::FileReport ReportOnSkins(const std::string& file, const host::Scene& scene,
                                 const host::gltf::SkinReading& reading) {
  orvane::TakenSkins taken;
  if (reading.is_skin) {
    taken.rate =
        static_cast<double>(reading.rate.numerator) / static_cast<double>(reading.rate.denominator);
    taken.written_rate = kTicksPerSecond / scene.Animation().TicksPerFrame();
    taken.is_rate_assumed = reading.rate_source == host::gltf::RateSource::kAssumed;
    taken.keys_between = reading.keys_between;
    taken.animation = reading.clip;
    taken.other_animations = reading.other_clips;
    taken.renamed = reading.renamed;
  }
  return ReportOn(orvane::CheckSkins(file, taken), orvane::Action::kExport);
}

}  // namespace cli
