#include "tests/module/module_fixture.h"

#include <optional>
#include <stdexcept>
#include <utility>

#include "plugin/resources/resource.h"

namespace test {
namespace {

constexpr int kOk = IDC_OK;

}  // namespace

std::string ModulePath() { return ORVANE_BINARY_DIR "/bin/OrvaneFileIO" ORVANE_MODULE_SUFFIX; }

void ModuleTest::SetUp() {
  std::string refusal;
  module_ = host::Module::Load(ModulePath(), {application_, &desk_.settings()}, refusal);
  ASSERT_NE(module_, nullptr) << refusal;
}

void ModuleTest::TearDown() {
  if (!script_fails_) desk_.desktop().RethrowFailure();
  EXPECT_TRUE(desk_.AllAnswered());
  EXPECT_FALSE(application_.progress().IsOpen());
  EXPECT_EQ(application_.scene().Misuse().Messages(), std::vector<std::string>());
  if (module_ != nullptr) {
    const host::ModuleLeftovers leftovers = host::UnloadModule(std::move(module_));
    EXPECT_TRUE(leftovers.IsClean());
    EXPECT_EQ(leftovers.open_keys, std::vector<std::string>());
  }
}

int ModuleTest::Import(const std::string& path, Desk::DialogAnswer answer) {
  return Run(&host::Module::Import, path, std::move(answer));
}

int ModuleTest::Export(const std::string& path, Desk::DialogAnswer answer) {
  return Run(&host::Module::Export, path, std::move(answer));
}

int ModuleTest::Run(Entry entry, const std::string& path, Desk::DialogAnswer answer) {
  const bool suppress_prompts = answer == nullptr;
  if (!suppress_prompts) desk_.Expect(std::move(answer));
  const std::optional<host::FileResult> result = (*module_.*entry)(path, suppress_prompts);
  EXPECT_TRUE(result.has_value());
  completed_ = result && result->completed;
  return result ? result->returned : -1;
}

host::Node& ModuleTest::Node(const std::string& name) {
  host::Node* node = application_.scene().FindByName(name);
  if (node == nullptr) throw std::runtime_error("No node is called " + name);
  return *node;
}

void PressOk(host::ScriptedDialog& dialog) { dialog.Click(kOk); }

}  // namespace test
