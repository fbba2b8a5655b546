#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/export.h"

// The names in use in a scene. Which node has which is not known here. The scene owns it.

namespace host {

// Which names the nodes of a scene have, so that a new one can be found at once.
class SKELDER_API NameTable {
 public:
  void Add(const std::string& name);

  // REQUIRES: `name` was added, and not removed as often.
  void Remove(const std::string& name);

  bool Contains(const std::string& name) const;

  // `name` itself when no node has it, else with the lowest number after it, of three digits or
  // more and from 1 on, that was not given out for this name and that makes it one that no node
  // has.
  std::string MakeUnique(const std::string& name);

  // `base` with such a number in any case.
  std::string Numbered(const std::string& base);

 private:
  // A name in use, where its hash says or behind that; every node's name is asked for, put in and
  // taken out several times, which in one block takes a single look far away.
  struct Slot {
    std::string name;
    std::size_t hash = 0;
    std::size_t uses = 0;  // 0 for an empty slot
  };

  // The slot of `name`, or the empty one where it would be. REQUIRES: there are slots.
  std::size_t Seek(const std::string& name, std::size_t hash) const;
  std::size_t Next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }
  // How far `slot` is behind where its name should be.
  std::size_t Distance(std::size_t slot) const {
    return (slot - slots_[slot].hash) & (slots_.size() - 1);
  }
  void Grow();
  void Empty(std::size_t slot);

  std::vector<Slot> slots_;  // a power of two
  std::size_t names_ = 0;    // at most two thirds of the slots
  std::unordered_map<std::string, std::size_t> last_numbers_;
};

}  // namespace host
