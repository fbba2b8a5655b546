#include <gtest/gtest.h>

#include "host/application/module.h"
#include "tests/module/module_fixture.h"
#include "tests/support/posix/journal/journal_stage.h"

// What the module asks of its system while it is loaded and unloaded.

namespace test {
namespace {

TEST(ModuleJournal, LoadedAndUnloaded) {
  JournalStage stage;
  std::string refusal;
  std::unique_ptr<host::Module> module =
      host::Module::Load(ModulePath(), {stage.application, &stage.desk.settings()}, refusal);
  ASSERT_NE(module, nullptr) << refusal;
  for (int index = 0; index < module->NumberOfClasses(); ++index) {
    stage.journal.Note("class ", module->ClassDescriptor(index)->ClassName());
  }
  module.reset();
  ExpectJournal(ORVANE_SOURCE_DIR "/tests/module/posix/journals/loaded_and_unloaded.txt",
                stage.journal.Take());
}

}  // namespace
}  // namespace test
