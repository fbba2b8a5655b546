#include "plugin/import_trc/import_trc.h"

namespace orvane {

int ImportTRC::DoImport(const char* /*name*/, ImpInterface* /*import_interface*/,
                        Interface* /*interface*/, int /*suppress_prompts*/) {
  messages_.Report("ImportTRC is not part of this build.", "ImportTRC Error");
  return 1;
}

}  // namespace orvane
