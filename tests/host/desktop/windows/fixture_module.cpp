#include "tests/host/desktop/fixture_module.h"

#include <windows.h>

namespace host {

HINSTANCE FixtureModule() {
  static const HMODULE module = LoadLibraryA(ORVANE_FIXTURE_DIALOGS);
  return module;
}

}  // namespace host
