#include "tests/module/utility_fixture.h"

#include <cstring>
#include <stdexcept>

#include "plugin/resources/resource.h"

namespace test {
namespace {

constexpr char kKey[] = "Software\\Orvane\\OrvaneFileIO\\Skelder\\ConvertBVK";

}  // namespace

void UtilityTest::TearDown() {
  panel_.reset();
  EXPECT_EQ(application_.HeldCustomEdits(), 0);
  EXPECT_TRUE(application_.rollup_pages().Open().empty());
  EXPECT_FALSE(application_.picking().IsActive());
  EXPECT_TRUE(application_.callbacks().ExitCallbacks().empty());
  ModuleTest::TearDown();
}

void UtilityTest::Open() {
  panel_ =
      std::make_unique<host::UtilityPanel>(module_->CreateUtility("OrvaneUtilities"), application_);
}

host::ScriptedDialog& UtilityTest::Page() {
  host::ScriptedDialog* const page = desk_.desktop().ShownDialog(IDD_UTILITIES);
  if (page == nullptr) throw std::runtime_error("The panel is not open");
  return *page;
}

std::optional<std::string> UtilityTest::Stored(const std::string& name) {
  const auto value = desk_.settings().FindValue(kKey, name);
  return value ? std::optional<std::string>(value->bytes) : std::nullopt;
}

void UtilityTest::Store(const std::string& name, platform::RegistryType type,
                        const std::string& bytes) {
  desk_.settings().StoreValue(kKey, name, {type, bytes});
}

std::string FlagBytes(bool flag) { return {static_cast<char>(flag ? 1 : 0)}; }

std::string FloatBytes(float number) {
  std::string bytes(sizeof number, '\0');
  std::memcpy(bytes.data(), &number, sizeof number);
  return bytes;
}

}  // namespace test
