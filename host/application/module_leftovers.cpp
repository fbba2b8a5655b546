#include "host/application/module_leftovers.h"

#include <algorithm>
#include <iterator>

#include "host/application/application.h"
#include "host/base/heap_control.h"
#include "host/desktop/settings.h"

namespace host {
namespace {

std::size_t RegisteredCallbacks(Application& application) {
  const PluginCallbacks& callbacks = application.callbacks();
  return callbacks.ExitCallbacks().size() + (callbacks.PickMode() == nullptr ? 0U : 1U) +
         application.rollup_pages().Open().size() +
         (application.progress().HoldsCallback() ? 1U : 0U);
}

std::size_t Excess(std::size_t now, std::size_t before) { return now > before ? now - before : 0; }

}  // namespace

bool ModuleLeftovers::IsClean() const {
  return open_keys.empty() && live_allocations == 0 && loose_instances == 0 && callbacks == 0;
}

Holdings::Holdings(Application& application, const Settings* settings) {
  if (settings != nullptr) held_.open_keys = settings->OpenKeys();
  held_.live_allocations = LiveAllocations();
  held_.loose_instances = application.scene().LooseInstances();
  held_.callbacks = RegisteredCallbacks(application);
}

ModuleLeftovers Holdings::Since(const Holdings& before) const {
  ModuleLeftovers left;
  std::set_difference(held_.open_keys.begin(), held_.open_keys.end(),
                      before.held_.open_keys.begin(), before.held_.open_keys.end(),
                      std::back_inserter(left.open_keys));
  left.live_allocations = Excess(held_.live_allocations, before.held_.live_allocations);
  left.loose_instances = Excess(held_.loose_instances, before.held_.loose_instances);
  left.callbacks = Excess(held_.callbacks, before.held_.callbacks);
  return left;
}

}  // namespace host
