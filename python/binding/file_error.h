#pragma once

#include <cstddef>
#include <string>

// How the binding gives up over a file: in Python it is an orvane.FileError.

namespace binding {

struct FileRefusal {
  std::string path;
  std::string text;  // of the file, behind its name
  std::string code;
  std::size_t line = 0;  // counted from 1; 0 when it has no place in the file
  std::size_t column = 0;
};

// Has every FileRefusal that leaves a function become one.
void RegisterFileError();

}  // namespace binding
