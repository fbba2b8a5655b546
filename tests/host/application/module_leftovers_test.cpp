#include <gmock/gmock.h>

#include <cstring>

#include "host/base/heap_control.h"
#include "platform/registry.h"
#include "sdk/core/heap.h"
#include "tests/host/application/module_fixture.h"

namespace {

using testing::ElementsAre;

class ModuleLeftoversTest : public ModuleTest {
 protected:
  // What the fixture module leaves behind after importing `file`.
  host::ModuleLeftovers LeftAfter(const std::string& file) {
    auto module = Load(Fixture("fixture_module"));
    static_cast<void>(module->Import(file, true));
    return host::UnloadModule(std::move(module));
  }
};

TEST_F(ModuleLeftoversTest, AreNoneWhenTheModuleGaveEverythingBack) {
  EXPECT_TRUE(LeftAfter("done.fix").IsClean());
}

TEST_F(ModuleLeftoversTest, AreNoneOfWhatOthersHoldAlready) {
  void* block = SkelderAllocate(8);
  platform::RegistryKey* key = platform::CreateRegistryKey(nullptr, "Fixture\\Options");
  EXPECT_TRUE(LeftAfter("done.fix").IsClean());
  platform::CloseRegistryKey(key);
  SkelderFree(block);
}

TEST_F(ModuleLeftoversTest, NameTheKeysThatAreOpen) {
  const host::ModuleLeftovers left = LeftAfter("key.fix");
  EXPECT_THAT(left.open_keys, ElementsAre("Fixture\\Forgotten"));
  EXPECT_FALSE(left.IsClean());
}

TEST_F(ModuleLeftoversTest, IgnoreKeysWithoutARegistryToAsk) {
  auto module = host::Module::Load(Fixture("fixture_module"), {application_}, refusal_);
  static_cast<void>(module->Import("key.fix", true));
  EXPECT_TRUE(host::UnloadModule(std::move(module)).IsClean());
}

TEST_F(ModuleLeftoversTest, CountAllocationsThatWereNotFreed) {
  const host::ModuleLeftovers left = LeftAfter("allocation.fix");
  EXPECT_EQ(left.live_allocations, 1U);
  EXPECT_FALSE(left.IsClean());
  const auto address = settings_.FindValue("Fixture\\Options", "Forgotten");
  ASSERT_TRUE(address.has_value());
  void* memory = nullptr;
  ASSERT_EQ(address->bytes.size(), sizeof memory);
  std::memcpy(&memory, address->bytes.data(), sizeof memory);
  SkelderFree(memory);
}

TEST_F(ModuleLeftoversTest, CountInstancesThatNobodyTookOrDeleted) {
  const host::ModuleLeftovers left = LeftAfter("instance.fix");
  EXPECT_EQ(left.loose_instances, 1U);
  EXPECT_FALSE(left.IsClean());
}

TEST_F(ModuleLeftoversTest, CountCallbacksThatAreStillRegistered) {
  for (const char* file : {"exit.fix", "pick.fix", "progress.fix"}) {
    const host::ModuleLeftovers left = LeftAfter(file);
    EXPECT_EQ(left.callbacks, 1U) << file;
    EXPECT_FALSE(left.IsClean()) << file;
  }
}

}  // namespace
