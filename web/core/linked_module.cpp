#include "web/core/linked_module.h"

#include <array>

#include "platform/web/linked_library.h"
#include "sdk/core/library.h"

// The plug-in in a program that can load nothing while it runs.

// The entry points of the module.
extern "C" {
const char* LibDescription();
int LibNumberClasses();
ClassDesc2* LibClassDesc(int index);
std::uint32_t LibVersion();
}

namespace web {
namespace {

// The one thing here that is there before the module's own statics, whose option records open their
// keys when they are constructed.
class LinkedModule {
 public:
  LinkedModule() { platform::OfferLinkedLibrary(ORVANE_MODULE_NAME, entry_points_); }

  LinkedSettings& Settings() { return settings_; }

 private:
  LinkedSettings settings_;
  std::array<platform::LinkedFunction, 4> entry_points_ = {{
      {"LibDescription", reinterpret_cast<void*>(LibDescription)},
      {"LibNumberClasses", reinterpret_cast<void*>(LibNumberClasses)},
      {"LibClassDesc", reinterpret_cast<void*>(LibClassDesc)},
      {"LibVersion", reinterpret_cast<void*>(LibVersion)},
  }};
};

constexpr int kBeforeOthers = 101;  // the first that is not the compiler's own
__attribute__((init_priority(kBeforeOthers))) LinkedModule linked_module;

}  // namespace

LinkedSettings& SettingsOfModule() { return linked_module.Settings(); }

}  // namespace web
