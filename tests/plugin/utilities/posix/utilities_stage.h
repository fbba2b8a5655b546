#pragma once

#include <memory>
#include <string>

#include "platform/module.h"
#include "plugin/utilities/orvane_utilities.h"
#include "tests/support/posix/journal/disturbed.h"
#include "tests/support/posix/journal/journal_stage.h"

namespace test {

// The utility panel, and a folder for its outputs. In the settings are a mapping file, which pairs
// HEAD with Head1, the two folders, and an offset.
struct UtilitiesStage : JournalStage {
  UtilitiesStage();

  // What the registry holds of a setting from now on.
  void Store(const std::string& name, platform::RegistryType type, const std::string& bytes);
  void StoreFlag(const std::string& name, bool flag);

  // Makes the panel, and opens it.
  void Make();
  void Open() { utilities->BeginEditParams(&host, nullptr); }
  void Close() { utilities->EndEditParams(&host, nullptr); }

  // The open page.
  host::ScriptedDialog& Page();

  orvane::MessageSink messages;
  orvane::StringTable strings;
  orvane::PickControlNode pick;
  std::unique_ptr<orvane::OrvaneUtilities> utilities;
};

// Compares `lines` with the journal `name`.
void ExpectUtilitiesJournal(const std::string& name, const JournalLines& lines);

}  // namespace test
