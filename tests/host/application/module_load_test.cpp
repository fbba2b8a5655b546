#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "tests/host/application/module_fixture.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class ModuleLoadTest : public ModuleTest {};

TEST_F(ModuleLoadTest, OffersWhatTheEntryPointsAnswer) {
  const auto module = Load(Fixture("fixture_module"));
  ASSERT_NE(module, nullptr) << refusal_;
  EXPECT_EQ(module->path(), Fixture("fixture_module"));
  EXPECT_STREQ(module->Description(), "Fixture module");
  EXPECT_EQ(module->Version(), 0x23281500U);
  EXPECT_EQ(module->NumberOfClasses(), 3);
  ASSERT_NE(module->ClassDescriptor(1), nullptr);
  EXPECT_EQ(module->ClassDescriptor(1)->SuperClassID(), kSceneExportSuperClass);
  EXPECT_EQ(module->ClassDescriptor(3), nullptr);
}

TEST_F(ModuleLoadTest, ConstructsTheModulesStaticsAndDestroysThem) {
  auto module = Load(Fixture("fixture_module"));
  EXPECT_THAT(settings_.OpenKeys(), ElementsAre("Fixture\\Options"));
  module.reset();
  EXPECT_THAT(settings_.OpenKeys(), ElementsAre());
}

class ModuleWithoutEntryPointTest : public ModuleTest,
                                    public testing::WithParamInterface<const char*> {};

TEST_P(ModuleWithoutEntryPointTest, IsRefusedAndUnloaded) {
  const std::string entry = GetParam();
  const std::string path = Fixture("fixture_without_" + entry);
  EXPECT_EQ(Load(path), nullptr);
  EXPECT_EQ(refusal_, path + " is not a plug-in module: it has no entry point " + entry + ".");
  EXPECT_THAT(settings_.OpenKeys(), ElementsAre());
}

INSTANTIATE_TEST_SUITE_P(EveryEntryPoint, ModuleWithoutEntryPointTest,
                         testing::Values("LibDescription", "LibNumberClasses", "LibClassDesc",
                                         "LibVersion"));

TEST_F(ModuleLoadTest, RefusesAModuleMadeForAnotherInterface) {
  const std::string path = Fixture("fixture_for_interface_20");
  EXPECT_EQ(Load(path), nullptr);
  EXPECT_EQ(refusal_,
            path + " was made for interface 20 of the host, but this host has interface 21.");
  EXPECT_THAT(settings_.OpenKeys(), ElementsAre());
}

TEST_F(ModuleLoadTest, ComparesTheInterfaceWithTheHostsOwn) {
  EXPECT_NE(Load(Fixture("fixture_for_interface_20"), 20), nullptr) << refusal_;
  EXPECT_EQ(Load(Fixture("fixture_module"), 22), nullptr);
  EXPECT_THAT(refusal_, HasSubstr("interface 21 of the host, but this host has interface 22."));
}

TEST_F(ModuleLoadTest, NamesAFileThatCannotBeLoaded) {
  const std::string text_file = Fixture("no_module");
  std::ofstream(text_file) << "This is no library.";
  for (const std::string& path :
       {text_file, std::string(ORVANE_BINARY_DIR), Fixture("does_not_exist"), std::string()}) {
    EXPECT_EQ(Load(path), nullptr);
    EXPECT_THAT(refusal_, StartsWith(path + " cannot be loaded: "));
    EXPECT_GT(refusal_.size(), path.size() + std::string(" cannot be loaded: ").size());
  }
}

TEST_F(ModuleLoadTest, TakesABareFileNameFromTheCurrentFolder) {
  const std::filesystem::path folder = std::filesystem::current_path();
  std::filesystem::current_path(std::string(ORVANE_BINARY_DIR) + "/tests");
  EXPECT_NE(Load("fixture_module" ORVANE_MODULE_SUFFIX), nullptr) << refusal_;
  std::filesystem::current_path(folder);
}

TEST_F(ModuleLoadTest, LoadsAModuleAgain) {
  for (int round = 0; round < 3; ++round) {
    auto module = Load(Fixture("fixture_module"));
    ASSERT_NE(module, nullptr) << refusal_;
    EXPECT_TRUE(host::UnloadModule(std::move(module)).IsClean());
  }
}

}  // namespace
