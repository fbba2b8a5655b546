#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>

#include "platform/export.h"

// The names in use in a scene. Which node has which is not known here. The scene owns it.

namespace host {

// Which names the nodes of a scene have, so that a new one can be found at once.
class SKELDER_API NameTable {
 public:
  void Add(const std::string& name) { ++uses_[name]; }

  // REQUIRES: `name` was added, and not removed as often.
  void Remove(const std::string& name);

  bool Contains(const std::string& name) const { return uses_.count(name) != 0; }

  // `name` itself when no node has it, else with the lowest number after it, of three digits or
  // more and from 1 on, that was not given out for this name and that makes it one that no node
  // has.
  std::string MakeUnique(const std::string& name);

  // `base` with such a number in any case.
  std::string Numbered(const std::string& base);

 private:
  std::unordered_map<std::string, std::size_t> uses_;
  std::unordered_map<std::string, std::size_t> last_numbers_;
};

}  // namespace host
