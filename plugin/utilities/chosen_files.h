#pragma once

#include <cstddef>
#include <string>
#include <vector>

// What a file dialog that allows several files leaves in its buffer.
namespace orvane {

struct ChosenFiles {
  std::string folder;
  std::vector<std::string> paths;  // of the files, all in that folder
};

// The most files that are taken; those behind them are left out.
inline constexpr std::size_t kMostFiles = 1000;

// Reads `buffer` as platform::ChooseFiles fills it, and changes it. Names are put behind the folder
// with `separator` between.
ChosenFiles ReadChosenFiles(std::string& buffer, std::size_t name_offset, char separator);

}  // namespace orvane
