#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "host/application/module.h"
#include "tests/module/module_fixture.h"
#include "tests/plugin/import_htr/posix/two_bones.h"
#include "tests/support/posix/journal/journal_stage.h"

// What the module asks of its host and its system as a whole.

namespace test {
namespace {

std::unique_ptr<host::Module> Load(JournalStage& stage) {
  std::string refusal;
  std::unique_ptr<host::Module> module =
      host::Module::Load(ModulePath(), {stage.application, &stage.desk.settings()}, refusal);
  if (module == nullptr) throw std::runtime_error(refusal);
  return module;
}

// The module asks for what its parts ask for when they are no module.
TEST(ModuleJournal, ImportsLikeItsParts) {
  JournalStage stage;
  const std::unique_ptr<host::Module> module = Load(stage);
  const std::unique_ptr<SceneImport> importer = module->CreateImporter("HTR");
  stage.journal.Take();
  const std::string path = stage.folder.Write("walk.htr", TwoBones().Text());
  ExpectJournal(ORVANE_SOURCE_DIR "/tests/plugin/import_htr/posix/journals/create.txt",
                stage.LinesOf(importer->DoImport(path.c_str(), nullptr, &stage.host, 1)));
}

TEST(ModuleJournal, LoadedAndUnloaded) {
  JournalStage stage;
  std::unique_ptr<host::Module> module = Load(stage);
  for (int index = 0; index < module->NumberOfClasses(); ++index) {
    stage.journal.Note("class ", module->ClassDescriptor(index)->ClassName());
  }
  module.reset();
  ExpectJournal(ORVANE_SOURCE_DIR "/tests/module/posix/journals/loaded_and_unloaded.txt",
                stage.journal.Take());
}

}  // namespace
}  // namespace test
