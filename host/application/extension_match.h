#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "host/application/module_entry.h"
#include "host/base/letter_case.h"
#include "sdk/core/class_id.h"
#include "sdk/core/plugin.h"

// Finding a module's importer or exporter for a file: only an instance knows its extensions.

namespace host {

// Whether `plugin` is for files of `extension`.
template <typename Plugin>
[[nodiscard]] bool HasExtension(Plugin& plugin, std::string_view extension) {
  for (int n = 0; n < plugin.ExtCount(); ++n) {
    const char* offered = plugin.Ext(n);
    if (offered != nullptr && SameButForCase(offered, extension)) return true;
  }
  return false;
}

// A new instance of the first class of `super_class` whose instances are for `extension`; null when
// there is none. `Plugin` is the base class of the plug-ins of `super_class`.
template <typename Plugin>
[[nodiscard]] std::unique_ptr<Plugin> CreateByExtension(const ModuleEntry& entry,
                                                        SuperClassId super_class,
                                                        std::string_view extension) {
  for (int i = 0; i < entry.number_of_classes(); ++i) {
    ClassDesc2* descriptor = entry.class_descriptor(i);
    if (descriptor == nullptr || descriptor->SuperClassID() != super_class) continue;
    std::unique_ptr<Plugin> plugin(static_cast<Plugin*>(descriptor->Create(false)));
    if (plugin != nullptr && HasExtension(*plugin, extension)) return plugin;
  }
  return nullptr;
}

}  // namespace host
