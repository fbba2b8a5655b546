#include "tests/plugin/utilities/posix/utilities_stage.h"

#include <stdexcept>

#include "plugin/resources/resource.h"

namespace test {

UtilitiesStage::UtilitiesStage() {
  std::filesystem::create_directory(folder.Path() / "out");
  using Type = platform::RegistryType;
  Store("MNMPath", Type::kString, folder.Write("map.mnm", "HEAD\tHead1\t\n"));
  Store("InputPath", Type::kString, folder.Path().string());
  Store("OutputPath", Type::kString, folder.File("out"));
  Store("OffsetX", Type::kDoubleWord, std::string("\x00\x00\x80\x3f", 4));
}

void UtilitiesStage::Store(const std::string& name, platform::RegistryType type,
                           const std::string& bytes) {
  desk.settings().StoreValue("Software\\Orvane\\OrvaneFileIO\\Skelder\\ConvertBVK", name,
                             {type, bytes});
}

void UtilitiesStage::StoreFlag(const std::string& name, bool flag) {
  Store(name, platform::RegistryType::kBinary, std::string(1, flag ? '\1' : '\0'));
}

void UtilitiesStage::Make() {
  utilities =
      std::make_unique<orvane::OrvaneUtilities>(messages, strings, pick, platform::ModuleHandle());
}

host::ScriptedDialog& UtilitiesStage::Page() {
  host::ScriptedDialog* const page = desk.desktop().ShownDialog(IDD_UTILITIES);
  if (page == nullptr) throw std::runtime_error("The panel is not open");
  return *page;
}

void ExpectUtilitiesJournal(const std::string& name, const JournalLines& lines) {
  ExpectJournal(ORVANE_SOURCE_DIR "/tests/plugin/utilities/posix/journals/" + name + ".txt", lines);
}

}  // namespace test
