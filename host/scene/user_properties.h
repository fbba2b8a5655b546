#pragma once

#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/export.h"

// Numbers that are kept on nodes by their keys. A scene's nodes have few keys, and nearly all of
// them the same ones.

namespace host {

// The keys of all nodes of a scene, each once. The scene owns it.
class SKELDER_API PropertyKeys {
 public:
  // The key that reads `key`, which is here from now on.
  const std::string& Of(const std::string& key) { return *keys_.insert(key).first; }

 private:
  std::unordered_set<std::string> keys_;  // which leaves them where they are
};

// The numbers of one node, in the order of their keys. The node owns it.
class SKELDER_API UserProperties {
 public:
  // NOLINTBEGIN(readability-identifier-naming): the names that the standard library asks for
  using value_type = std::pair<const std::string&, float>;

  class const_iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = UserProperties::value_type;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = value_type;

    value_type operator*() const { return {*at_->first, at_->second}; }
    const_iterator& operator++() {
      ++at_;
      return *this;
    }
    const_iterator operator++(int) { return const_iterator(at_++); }
    friend bool operator==(const const_iterator&, const const_iterator&) = default;

   private:
    friend class UserProperties;
    using Place = std::vector<std::pair<const std::string*, float>>::const_iterator;

    explicit const_iterator(Place at) : at_(at) {}

    Place at_;
  };
  // NOLINTEND(readability-identifier-naming)

  // What the key `key`, which outlives this, stands for from now on.
  void Set(const std::string& key, float value);

  // Nothing when there is no such key.
  std::optional<float> Find(std::string_view key) const;

  const_iterator begin() const { return const_iterator(numbers_.begin()); }
  const_iterator end() const { return const_iterator(numbers_.end()); }
  bool empty() const { return numbers_.empty(); }

 private:
  using Numbers = std::vector<std::pair<const std::string*, float>>;

  // The first one at or behind `key`.
  Numbers::const_iterator LowerBound(std::string_view key) const;

  Numbers numbers_;
};

}  // namespace host
