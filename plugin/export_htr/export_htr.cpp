#include "plugin/export_htr/export_htr.h"

namespace orvane {

int ExportHTR::DoExport(const char* /*name*/, ExpInterface* /*export_interface*/,
                        Interface* /*interface*/, int /*suppress_prompts*/,
                        std::uint32_t /*options*/) {
  messages_.Report("ExportHTR is not part of this build.", "ExportHTR Error");
  return 0;
}

}  // namespace orvane
