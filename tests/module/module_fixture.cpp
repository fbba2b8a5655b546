#include "tests/module/module_fixture.h"

#include <filesystem>
#include <fstream>
#include <utility>

namespace test {
namespace {

constexpr int kOk = 1097;

std::filesystem::path Folder() {
  const auto* info = testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string(info->test_suite_name()) + "." + info->name();
  for (char& letter : name) {
    if (letter == '/') letter = '_';
  }
  return std::filesystem::path(testing::TempDir()) / name;
}

}  // namespace

std::string ModulePath() { return ORVANE_BINARY_DIR "/bin/OrvaneFileIO.so"; }

void ModuleTest::SetUp() {
  std::string refusal;
  module_ = host::Module::Load(ModulePath(), {application_, &desk_.registry()}, refusal);
  ASSERT_NE(module_, nullptr) << refusal;
}

void ModuleTest::TearDown() {
  desk_.desktop().RethrowFailure();
  EXPECT_TRUE(desk_.AllAnswered());
  EXPECT_FALSE(application_.progress().IsOpen());
  EXPECT_EQ(application_.scene().Misuse().Messages(), std::vector<std::string>());
  if (module_ != nullptr) {
    const host::ModuleLeftovers leftovers = host::UnloadModule(std::move(module_));
    EXPECT_TRUE(leftovers.IsClean());
    EXPECT_TRUE(leftovers.open_keys.empty());
  }
  std::filesystem::remove_all(Folder());
}

int ModuleTest::Import(const std::string& path, Desk::DialogAnswer answer) {
  const bool suppress_prompts = answer == nullptr;
  if (!suppress_prompts) desk_.Expect(std::move(answer));
  const std::optional<host::ImportResult> result = module_->Import(path, suppress_prompts);
  EXPECT_TRUE(result.has_value());
  completed_ = result && result->completed;
  return result ? result->returned : -1;
}

std::string ModuleTest::Write(const std::string& name, const std::string& text) {
  std::filesystem::create_directories(Folder());
  const std::filesystem::path path = Folder() / name;
  std::ofstream(path, std::ios::binary) << text;
  return path;
}

host::Node& ModuleTest::Node(const std::string& name) {
  host::Node* node = application_.scene().FindByName(name);
  if (node == nullptr) throw std::runtime_error("No node is called " + name);
  return *node;
}

void PressOk(host::ScriptedDialog& dialog) { dialog.Click(kOk); }

}  // namespace test
