#pragma once

#include <string>
#include <vector>

// The page that shows takes, "orvane-workbench.html": where it lies, and how takes get into it.

namespace cli {

// The page without takes, for a program that lies in the folder `program`: the file that the
// environment variable ORVANE_WORKBENCH names, where it is set and not empty; else what lies beside
// the program, where a package puts it, or in the tree that the program was built in. Throws a
// Failure that says what to do when there is none.
[[nodiscard]] std::string FindWorkbench(const std::string& program);

// A take that goes into the page.
struct EmbeddedTake {
  std::string name;  // of the file, in no folder
  std::string bytes;
};

// Puts takes into a page, one after the other, so that no two need to be in memory.
class WorkbenchWriter {
 public:
  // `page` is the text of the page without takes, which its file `name` holds. Throws a Failure
  // that names it when there is no place for takes in it.
  WorkbenchWriter(const std::string& name, const std::string& page);

  // Whatever the name of a take is, it cannot end the element that it is put in.
  void Add(const EmbeddedTake& take);

  // The page with all of them.
  // REQUIRES: no call after it.
  [[nodiscard]] std::string Finish();

 private:
  std::string page_;  // up to the last take
  std::string rest_;
  bool is_empty_ = true;
};

}  // namespace cli
