#pragma once

#include <gtest/gtest.h>

#include <string>

#include "host/application/application.h"
#include "tests/support/desk.h"
#include "tests/support/posix/journal/journal_desktop.h"
#include "tests/support/posix/journal/journal_interface.h"
#include "tests/support/posix/journal/journal_registry.h"
#include "tests/support/posix/journal/journal_text_file.h"
#include "tests/support/posix/journal/unusual_host.h"
#include "tests/support/temporary_folder.h"

namespace test {

// Everything that a plug-in class needs around it, new and unusual, with a journal of what it asks
// for. Paths of the stage's folder begin with FOLDER there.
struct JournalStage {
  JournalStage() { journal.Abbreviate(folder.Path().string(), "FOLDER"); }
  JournalStage(const JournalStage&) = delete;
  JournalStage& operator=(const JournalStage&) = delete;
  ~JournalStage() {
    EXPECT_NO_THROW(desk.desktop().RethrowFailure());
    EXPECT_TRUE(desk.AllAnswered());
    EXPECT_EQ(scene().Misuse().Messages(), misuse);
    EXPECT_EQ(scene().LooseInstances(), 0U);
  }

  host::Scene& scene() { return application.scene(); }

  // What was noted since the last time, and what the call returned.
  template <typename Result>
  JournalLines LinesOf(Result returned) {
    journal.Note("returned ", returned);
    return journal.Take();
  }

  TemporaryFolder folder;
  Desk desk;
  Journal journal;
  JournalDesktop desktop{journal};
  JournalRegistry registry{journal};
  host::Application application;
  RefusingInterface refusing{application.plugin_interface()};
  UnusualHost unusual{application, refusing};
  JournalInterface host{journal, unusual};
  std::vector<std::string> misuse;  // what the plug-in is known to call against the host's rules
};

}  // namespace test
