#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/files.h"
#include "tests/support/program.h"
#include "tests/support/replaced_text.h"
#include "tests/support/temporary_folder.h"

// Runs the program `orvane` in a folder of the test's own, where its settings lie too.

namespace test {

class OrvaneTest : public testing::Test {
 protected:
  // What the program makes of `arguments`.
  ProgramResult Orvane(const std::vector<std::string>& arguments) const {
    return RunProgram(Command(arguments));
  }

  // The run itself, for tests that want to change something about it.
  ProgramRun Command(const std::vector<std::string>& arguments) const;

  // Makes the file `name` in the test's folder.
  void Write(const std::string& name, const std::string& bytes) const {
    WriteFile(folder_.File(name), bytes);
  }

  std::string Read(const std::string& name) const { return ReadFile(folder_.File(name)); }

  // Of a file that the plug-in has written as text: with line feeds alone, and with "TIME" in place
  // of any moment.
  std::string ReadText(const std::string& name) const;

  bool Exists(const std::string& name) const { return std::filesystem::exists(folder_.File(name)); }

  std::vector<std::string> Names() const { return NamesIn(folder_.Path()); }

  TemporaryFolder folder_;
};

// A skeleton of two segments, "Hips" and its child "Spine", with the frames 1 to 3 at 60 frames per
// second.
std::string SmallMotion();

// The module of the tests, which is loaded in the plug-in's place.
std::string HurriedModule();

// The codes of what is told of files in `error`, which the program has written, in order; a line
// that is not of a finding stands for itself.
std::vector<std::string> CodesIn(const std::string& error);

// `text` with the slashes of paths as POSIX systems write them.
std::string Slashed(std::string text);

}  // namespace test
