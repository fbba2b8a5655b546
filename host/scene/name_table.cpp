#include "host/scene/name_table.h"

#include <cassert>

namespace host {
namespace {

constexpr std::size_t kNumberWidth = 3;

std::string WithNumber(const std::string& base, std::size_t number) {
  const std::string digits = std::to_string(number);
  const std::size_t zeros = digits.size() < kNumberWidth ? kNumberWidth - digits.size() : 0;
  return base + std::string(zeros, '0') + digits;
}

}  // namespace

void NameTable::Remove(const std::string& name) {
  const auto found = uses_.find(name);
  assert(found != uses_.end());
  if (--found->second == 0) uses_.erase(found);
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
