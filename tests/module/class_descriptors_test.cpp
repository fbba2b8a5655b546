// What the module tells the host about itself and its four classes.

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <map>

#include "host/base/heap_control.h"
#include "platform/string_table.h"
#include "tests/module/module_fixture.h"

namespace test {
namespace {

using EntryPointsTest = ModuleTest;

TEST_F(EntryPointsTest, TellWhatTheModuleIsAndForWhichHost) {
  EXPECT_STREQ(module_->Description(),
               "OrvaneFileIO Post-Process Motion Capture Utility (Zerubel)");
  EXPECT_EQ(module_->Version(), 0x23281500U);
  EXPECT_EQ(module_->NumberOfClasses(), 4);
}

TEST_F(EntryPointsTest, TheDescriptionOutlivesOtherTexts) {
  const char* description = module_->Description();
  module_->ClassDescriptor(0)->ClassName();
  EXPECT_STREQ(description, "OrvaneFileIO Post-Process Motion Capture Utility (Zerubel)");
}

TEST_F(EntryPointsTest, ThereIsNoClassOfAnotherIndex) {
  for (const int index :
       {-1, 4, 5, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    EXPECT_EQ(module_->ClassDescriptor(index), nullptr) << index;
  }
}

TEST_F(EntryPointsTest, AHostOfAnotherInterfaceRefusesTheModule) {
  for (const std::uint32_t interface_number : {20U, 22U, 0U}) {
    std::string refusal;
    EXPECT_EQ(host::Module::Load(ModulePath(), {application_, &desk_.settings(), interface_number},
                                 refusal),
              nullptr);
    EXPECT_NE(refusal.find("interface 21"), std::string::npos) << refusal;
  }
}

TEST_F(EntryPointsTest, LoadingOpensTheKeysOfTheThreeRecordsAndWritesNothing) {
  const std::string root = "Software\\Orvane\\OrvaneFileIO\\Skelder\\";
  EXPECT_EQ(desk_.settings().OpenKeys(),
            (std::vector<std::string>{root + "ExportHTR", root + "ImportHTR", root + "ImportTRC"}));
  for (const char* name : {"ExportHTR", "ImportHTR", "ImportTRC"}) {
    for (const char* value : {"Apply", "Animate", "Range", "FPS", "Size", "ScaleFactor", "Pose"}) {
      EXPECT_FALSE(desk_.settings().FindValue(root + name, value)) << name << " " << value;
    }
  }
}

TEST_F(EntryPointsTest, WithoutARegistryTheModuleLoadsAllTheSame) {
  module_.reset();
  desk_.settings().RefuseKey("Software\\Orvane");
  SetUp();
  EXPECT_TRUE(desk_.settings().OpenKeys().empty());
  EXPECT_EQ(module_->NumberOfClasses(), 4);
}

TEST_F(EntryPointsTest, TheStringTableHoldsTheseTextsAndNoOthers) {
  const std::map<unsigned, std::string> texts = {
      {1, "OrvaneFileIO Post-Process Motion Capture Utility (Zerubel)"},
      {2, "Motion Capture"},
      {3, "OrvaneFileIO"},
      {4, "OrvaneFileIO Options"},
      {5, "Select Mapping File..."},
      {6, "Convert TRC to BVK"},
      {11, "Orvane HTR Files (*.HTR)"},
      {13, "Orvane TRC Files (*.TRC)"},
      {22, "ImportHTR Options"},
      {23, "ExportHTR Options"},
      {24, "ImportTRC Options"},
      {29, "ImportHTR"},
      {31, "ExportHTR"},
      {32, "ImportTRC"},
      {33, "OrvaneUtilities"},
      {34, "Marker Name Mapping Files (*.MNM)"},
      {35, "Kinarch Marker Files (*.BVK)"}};
  const HINSTANCE module = module_->ClassDescriptor(0)->HInstance();
  for (unsigned id = 0; id < 2000; ++id) {
    const auto expected = texts.find(id);
    std::array<char, 256> text{};
    platform::LoadStringResource(module, id, text.data(), text.size());
    EXPECT_EQ(text.data(), expected == texts.end() ? "" : expected->second) << id;
  }
}

struct ClassRow {
  int index;
  const char* name;
  SuperClassId super_class;
  ClassId class_id;
};

class ClassDescriptorTest : public ModuleTest, public testing::WithParamInterface<ClassRow> {
 protected:
  ClassDesc2& Descriptor() { return *module_->ClassDescriptor(GetParam().index); }
};

TEST_P(ClassDescriptorTest, AnswersAsItsClass) {
  const ClassRow& row = GetParam();
  EXPECT_EQ(Descriptor().IsPublic(), 1);
  EXPECT_STREQ(Descriptor().ClassName(), row.name);
  EXPECT_EQ(Descriptor().SuperClassID(), row.super_class);
  EXPECT_EQ(Descriptor().ClassID(), row.class_id);
  EXPECT_STREQ(Descriptor().Category(), "Motion Capture");
  EXPECT_STREQ(Descriptor().InternalName(), row.name);
  EXPECT_NE(Descriptor().HInstance(), nullptr);
  EXPECT_EQ(Descriptor().HInstance(), module_->ClassDescriptor(0)->HInstance());
  EXPECT_EQ(Descriptor().OkToCreate(), 1);
  EXPECT_EQ(Descriptor().InitialRollupPageState(), 0x7FFFFFFFU);
}

TEST_P(ClassDescriptorTest, TextsShareOneBuffer) {
  const char* name = Descriptor().ClassName();
  EXPECT_EQ(Descriptor().Category(), name);
  EXPECT_STREQ(name, "Motion Capture");
}

TEST_P(ClassDescriptorTest, FileClassesTakeAResourceIdAsTheTextItself) {
  const char text[] = "a setting's name";
  const char* found = Descriptor().GetRsrcString(reinterpret_cast<std::intptr_t>(text));
  EXPECT_EQ(found, GetParam().super_class == kUtilitySuperClass ? nullptr : text);
}

TEST_P(ClassDescriptorTest, CreatesInstancesOnTheHostsHeap) {
  const std::size_t before = host::LiveAllocations();
  for (const bool loading : {false, true}) {
    void* instance = Descriptor().Create(loading);
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(host::LiveAllocations(), before + 1);
    switch (GetParam().super_class) {
      case kSceneImportSuperClass:
        delete static_cast<SceneImport*>(instance);
        break;
      case kSceneExportSuperClass:
        delete static_cast<SceneExport*>(instance);
        break;
      default:
        delete static_cast<UtilityObj*>(instance);
    }
    EXPECT_EQ(host::LiveAllocations(), before);
  }
}

TEST_P(ClassDescriptorTest, CreatesNothingWithoutMemory) {
  host::RefuseAllocation(1);
  EXPECT_EQ(Descriptor().Create(false), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Classes, ClassDescriptorTest,
                         testing::Values(ClassRow{0, "ImportHTR", 2576, {0x52871D2D, 0x79755925}},
                                         ClassRow{1, "ExportHTR", 2592, {0x79A30F94, 0x5AD43C07}},
                                         ClassRow{2, "ImportTRC", 2576, {0x36712537, 0x27265B43}},
                                         ClassRow{
                                             3, "OrvaneUtilities", 4128, {0x34CC2142, 0x1E45027A}}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace test
