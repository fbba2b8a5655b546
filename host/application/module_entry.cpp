#include "host/application/module_entry.h"

namespace host {
namespace {

// Stores the address of the entry point `name` in `function`; false when there is none.
template <typename Function>
bool Find(platform::SharedLibrary& library, const char* name, Function& function,
          std::string& missing) {
  function = reinterpret_cast<Function>(library.Find(name));
  if (function == nullptr) missing = name;
  return function != nullptr;
}

constexpr std::uint32_t InterfaceNumber(std::uint32_t version) { return version >> 8U & 0xFFU; }

}  // namespace

std::optional<ModuleEntry> FindModuleEntry(platform::SharedLibrary& library,
                                           const std::string& path, std::uint32_t interface_number,
                                           std::string& refusal) {
  ModuleEntry entry;
  std::string missing;
  const bool complete = Find(library, "LibDescription", entry.description, missing) &&
                        Find(library, "LibNumberClasses", entry.number_of_classes, missing) &&
                        Find(library, "LibClassDesc", entry.class_descriptor, missing) &&
                        Find(library, "LibVersion", entry.version, missing);
  if (!complete) {
    refusal = path + " is not a plug-in module: it has no entry point " + missing + ".";
    return std::nullopt;
  }
  const std::uint32_t made_for = InterfaceNumber(entry.version());
  if (made_for != interface_number) {
    refusal = path + " was made for interface " + std::to_string(made_for) +
              " of the host, but this host has interface " + std::to_string(interface_number) + ".";
    return std::nullopt;
  }
  return entry;
}

}  // namespace host
