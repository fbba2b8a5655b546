#include "host/scene/name_table.h"

#include <cassert>
#include <functional>
#include <utility>

namespace host {
namespace {

constexpr std::size_t kNumberWidth = 3;
constexpr std::size_t kFewestSlots = 16;

std::string WithNumber(const std::string& base, std::size_t number) {
  const std::string digits = std::to_string(number);
  const std::size_t zeros = digits.size() < kNumberWidth ? kNumberWidth - digits.size() : 0;
  return base + std::string(zeros, '0') + digits;
}

}  // namespace

void NameTable::Add(const std::string& name) {
  if (3 * (names_ + 1) > 2 * slots_.size()) Grow();
  const std::size_t hash = std::hash<std::string>()(name);
  Slot& slot = slots_[Seek(name, hash)];
  if (slot.uses == 0) {
    slot.name = name;
    slot.hash = hash;
    ++names_;
  }
  ++slot.uses;
}

void NameTable::Remove(const std::string& name) {
  assert(names_ > 0);
  const std::size_t found = Seek(name, std::hash<std::string>()(name));
  assert(slots_[found].uses > 0);
  if (--slots_[found].uses == 0) Empty(found);
}

bool NameTable::Contains(const std::string& name) const {
  return names_ > 0 && slots_[Seek(name, std::hash<std::string>()(name))].uses > 0;
}

std::size_t NameTable::Seek(const std::string& name, std::size_t hash) const {
  std::size_t at = hash & (slots_.size() - 1);
  while (slots_[at].uses > 0 && (slots_[at].hash != hash || slots_[at].name != name)) at = Next(at);
  return at;
}

void NameTable::Grow() {
  std::vector<Slot> smaller(slots_.empty() ? kFewestSlots : 2 * slots_.size());
  slots_.swap(smaller);
  for (Slot& slot : smaller) {
    if (slot.uses > 0) slots_[Seek(slot.name, slot.hash)] = std::move(slot);
  }
}

// Names behind it that were kept out of where they should be move up, so that no search ends early.
void NameTable::Empty(std::size_t slot) {
  for (std::size_t next = Next(slot); slots_[next].uses > 0; next = Next(next)) {
    if (Distance(next) < ((next - slot) & (slots_.size() - 1))) continue;
    slots_[slot] = std::exchange(slots_[next], Slot());
    slot = next;
  }
  slots_[slot] = Slot();
  --names_;
}

std::string NameTable::MakeUnique(const std::string& name) {
  return Contains(name) ? Numbered(name) : name;
}

std::string NameTable::Numbered(const std::string& base) {
  std::size_t& number = last_numbers_[base];
  std::string name = WithNumber(base, ++number);
  while (Contains(name)) name = WithNumber(base, ++number);
  return name;
}

}  // namespace host
