#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "host/application/application.h"
#include "host/application/module.h"
#include "tests/support/desk.h"
#include "tests/support/temporary_folder.h"

namespace test {

// Where the build puts the module.
std::string ModulePath();

// The module, loaded as the host loads it, in an application of its own. Every test ends with what
// the module owes its host: no misuse, nothing left behind, no question that nobody answered.
class ModuleTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Imports `path` with the importer for its extension; the dialog is answered by `answer`, or
  // suppressed without one. Returns what the plug-in's entry returned.
  int Import(const std::string& path, Desk::DialogAnswer answer = nullptr);

  // Exports to `path` likewise.
  int Export(const std::string& path, Desk::DialogAnswer answer = nullptr);

  // Writes `text` to a file of this test and returns its path.
  std::string Write(const std::string& name, const std::string& text) {
    return folder_.Write(name, text);
  }

  // The node of that name; throws, and so fails the test, when there is none.
  host::Node& Node(const std::string& name);

  // Calls the module with `answer` at hand, and keeps how it ended.
  using Entry = std::optional<host::FileResult> (host::Module::*)(const std::string&, bool);
  int Run(Entry entry, const std::string& path, Desk::DialogAnswer answer);

  TemporaryFolder folder_;
  Desk desk_;
  host::Application application_;
  std::unique_ptr<host::Module> module_;
  bool script_fails_ = false;  // whether the user's script has failed as it should
  bool completed_ = false;     // whether the last import or export was carried out
};

// Leaves the options as the dialog shows them.
void PressOk(host::ScriptedDialog& dialog);

}  // namespace test
