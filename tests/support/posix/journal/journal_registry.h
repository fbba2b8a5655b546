#pragma once

#include <map>
#include <string>

#include "host/desktop/portable/installed_registry.h"
#include "tests/support/posix/journal/journal.h"

namespace test {

// The registry that was in use before, as a plug-in sees it while a journal is kept. In use until
// it is destroyed.
class JournalRegistry final : public platform::Registry {
 public:
  // `journal` outlives this object.
  explicit JournalRegistry(Journal& journal) : journal_(journal) {}
  JournalRegistry(const JournalRegistry&) = delete;
  JournalRegistry& operator=(const JournalRegistry&) = delete;

  platform::RegistryKey* CreateKey(platform::RegistryKey* parent, const char* path) override;
  void CloseKey(platform::RegistryKey* key) override;
  bool QueryValue(platform::RegistryKey* key, const char* name, void* data,
                  std::size_t& size) override;
  bool SetValue(platform::RegistryKey* key, const char* name, platform::RegistryType type,
                const void* data, std::size_t size) override;

 private:
  std::string NameOf(platform::RegistryKey* key) const;

  Journal& journal_;
  platform::Registry& own_ = *platform::CurrentRegistry();
  host::InstalledRegistry installed_{*this};
  std::map<platform::RegistryKey*, std::string> names_;  // last parts of the paths
};

}  // namespace test
