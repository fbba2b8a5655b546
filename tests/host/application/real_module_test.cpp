// The loader and the module that it was made for.

#include <gmock/gmock.h>

#include "tests/host/application/module_fixture.h"

namespace {

using testing::SizeIs;

class RealModuleTest : public ModuleTest {
 protected:
  const std::string path_ = ORVANE_BINARY_DIR "/bin/OrvaneFileIO" ORVANE_MODULE_SUFFIX;
};

TEST_F(RealModuleTest, IsLoadedAndLeavesNothingBehind) {
  for (int round = 0; round < 2; ++round) {
    auto module = Load(path_);
    ASSERT_NE(module, nullptr) << refusal_;
    EXPECT_EQ(module->NumberOfClasses(), 4);
    EXPECT_THAT(settings_.OpenKeys(), SizeIs(3));
    EXPECT_TRUE(host::UnloadModule(std::move(module)).IsClean());
  }
}

TEST_F(RealModuleTest, IsRefusedByAHostWithAnotherInterface) {
  for (const unsigned other : {20U, 22U}) {
    EXPECT_EQ(Load(path_, other), nullptr);
    EXPECT_EQ(refusal_, path_ + " was made for interface 21 of the host, but this host has " +
                            "interface " + std::to_string(other) + ".");
    EXPECT_THAT(settings_.OpenKeys(), SizeIs(0));
  }
}

TEST_F(RealModuleTest, HasAnImporterOrExporterForEachOfItsExtensions) {
  const auto module = Load(path_);
  ASSERT_NE(module, nullptr) << refusal_;
  EXPECT_NE(module->CreateImporter("htr"), nullptr);
  EXPECT_NE(module->CreateImporter("trc"), nullptr);
  EXPECT_NE(module->CreateExporter("htr"), nullptr);
  EXPECT_EQ(module->CreateExporter("trc"), nullptr);
  EXPECT_EQ(module->CreateImporter("bvk"), nullptr);
}

}  // namespace
