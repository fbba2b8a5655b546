#pragma once

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// Runs `orvane convert`.

namespace test {

class ConvertTest : public OrvaneTest {
 protected:
  // A marker file of two markers, the second of which drops out once; `x` tells files apart.
  static std::string Take(const std::string& x = "1") {
    return TrcText{.markers = {"Head1", "Toe"},
                   .frames = {{x + "\t2\t3", "4\t5\t6"}, {x + "\t2\t3", ""}}}
        .Text();
  }

  ProgramResult Convert(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "convert");
    return Orvane(arguments);
  }

  void MakeFolder(const std::string& name) const {
    std::filesystem::create_directory(folder_.Path() / name);
  }
  std::vector<std::string> NamesOf(const std::string& folder) const {
    return NamesIn(folder_.Path() / folder);
  }
  std::string Absolute(const std::string& name) const {
    return std::filesystem::canonical(folder_.File(name)).string();
  }
};

}  // namespace test
