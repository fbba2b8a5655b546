#pragma once

#include <string>
#include <vector>

// The takes in a page, as a browser finds them.

namespace test {

struct PageTake {
  std::string name;
  std::string bytes;

  friend bool operator==(const PageTake& left, const PageTake& right) {
    return left.name == right.name && left.bytes == right.bytes;
  }
};

// What stands in `page` between the tags of its takes. Throws std::runtime_error when there is not
// just one such place.
std::string TakesText(const std::string& page);

// The takes in `page`. Throws std::runtime_error when they are not as a browser wants them.
std::vector<PageTake> TakesIn(const std::string& page);

}  // namespace test
