#include "host/desktop/settings.h"

namespace host {

Settings::Settings() = default;
Settings::~Settings() = default;

}  // namespace host
