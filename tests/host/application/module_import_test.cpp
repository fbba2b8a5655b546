#include <gmock/gmock.h>

#include "host/base/heap_control.h"
#include "tests/host/application/module_fixture.h"

namespace {

class ModuleImportTest : public ModuleTest {
 protected:
  std::unique_ptr<host::Module> module_ = Load(Fixture("fixture_module"));
};

TEST_F(ModuleImportTest, FindsImportersAndExportersByExtensionInEitherCase) {
  for (const char* extension : {"FIX", "fix", "Fix"}) {
    EXPECT_NE(module_->CreateImporter(extension), nullptr) << extension;
    EXPECT_NE(module_->CreateExporter(extension), nullptr) << extension;
  }
  for (const char* extension : {"", "FI", "FIXX", ".FIX", "TRC", "[ix"}) {
    EXPECT_EQ(module_->CreateImporter(extension), nullptr) << extension;
    EXPECT_EQ(module_->CreateExporter(extension), nullptr) << extension;
  }
}

TEST_F(ModuleImportTest, TakesTheClassOfTheRightKind) {
  const auto exporter = module_->CreateExporter("fix");
  ASSERT_NE(exporter, nullptr);
  EXPECT_STREQ(exporter->ShortDesc(), "Fixture exporter");
}

TEST_F(ModuleImportTest, TellsHowAnImportEnded) {
  struct Case {
    const char* file;
    int returned;
    bool completed;
  };
  for (const Case& c : {Case{"done.fix", 1, true}, Case{"cancelled.fix", 1, false},
                        Case{"refused.fix", 0, false}, Case{"done.FIX", 1, true}}) {
    const auto result = module_->Import(c.file, true);
    ASSERT_TRUE(result.has_value()) << c.file;
    EXPECT_EQ(result->returned, c.returned) << c.file;
    EXPECT_EQ(result->completed, c.completed) << c.file;
  }
}

TEST_F(ModuleImportTest, TellsHowAnExportEnded) {
  struct Case {
    const char* file;
    bool suppress_prompts;
    int returned;
    bool completed;
  };
  for (const Case& c : {Case{"done.fix", true, 1, true}, Case{"cancelled.fix", true, 1, false},
                        Case{"refused.fix", true, 0, false}, Case{"done.FIX", false, 1, true},
                        Case{"asked.fix", true, 0, false}, Case{"asked.fix", false, 1, true}}) {
    const auto result = module_->Export(c.file, c.suppress_prompts);
    ASSERT_TRUE(result.has_value()) << c.file;
    EXPECT_EQ(result->returned, c.returned) << c.file;
    EXPECT_EQ(result->completed, c.completed) << c.file;
  }
}

TEST_F(ModuleImportTest, ExportsNothingWithoutAnExporterForTheExtension) {
  for (const char* file : {"walk.htr", "fix", "walk.", "", ".fix", "walk.fix.txt"}) {
    EXPECT_FALSE(module_->Export(file, true).has_value()) << file;
  }
}

TEST_F(ModuleImportTest, WorksOnTheApplicationsScene) {
  ASSERT_TRUE(module_->Import("done.fix", true).has_value());
  ASSERT_TRUE(module_->Import("done.fix", false).has_value());
  EXPECT_EQ(application_.scene().NodeCount(), 2U);
  EXPECT_NE(application_.scene().FindByName("quiet"), nullptr);
  EXPECT_NE(application_.scene().FindByName("asked"), nullptr);
}

TEST_F(ModuleImportTest, ImportsNothingWithoutAnImporterForTheExtension) {
  for (const char* file : {"walk.htr", "fix", "walk.", "", ".fix", "walk.fix.txt"}) {
    EXPECT_FALSE(module_->Import(file, true).has_value()) << file;
  }
}

TEST_F(ModuleImportTest, ImportsNothingWhenTheModuleGivesNoInstance) {
  host::RefuseAllocation(1);
  EXPECT_FALSE(module_->Import("done.fix", true).has_value());
  EXPECT_TRUE(module_->Import("done.fix", true).has_value());
}

}  // namespace
