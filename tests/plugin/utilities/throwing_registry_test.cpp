#include <gtest/gtest.h>

#include <new>

#include "host/desktop/portable/installed_registry.h"
#include "host/desktop/portable/memory_registry.h"
#include "platform/module.h"
#include "plugin/utilities/convert_bvk.h"

// A registry that has no memory for what is written.

namespace orvane {
namespace {

class FullRegistry final : public platform::Registry {
 public:
  platform::RegistryKey* CreateKey(platform::RegistryKey* parent, const char* path) override {
    return target_.CreateKey(parent, path);
  }
  void CloseKey(platform::RegistryKey* key) override { target_.CloseKey(key); }
  bool QueryValue(platform::RegistryKey* key, const char* name, void* data,
                  std::size_t& size) override {
    return target_.QueryValue(key, name, data, size);
  }
  bool SetValue(platform::RegistryKey* /*key*/, const char* /*name*/,
                platform::RegistryType /*type*/, const void* /*data*/,
                std::size_t /*size*/) override {
    ++refusals;
    throw std::bad_alloc();
  }

  int refusals = 0;

 private:
  host::MemoryRegistry target_;
  host::InstalledRegistry installed_{*this};
};

TEST(ConvertBVKTest, LosesSettingsThatThereIsNoMemoryForAndNothingElse) {
  FullRegistry registry;
  MessageSink messages;
  StringTable strings;
  {
    ConvertBVK converter(messages, strings, platform::ModuleHandle());
    converter.SaveSettings();
    EXPECT_EQ(registry.refusals, 1);
  }
  EXPECT_EQ(registry.refusals, 2) << "the end of the converter saves them, too";
}

}  // namespace
}  // namespace orvane
