#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

// Finds names of a list by what they say.
namespace orvane {

// The places of names in a list, which is its owner's: whoever asks gives `name_at`, which tells
// the name at an index. Takes a few bytes a name in one block, since files may have hundreds of
// thousands, of which a table with a node for each is as large as the list and never near at hand.
// Indices count from 0. Nothing fails but for want of memory, which changes nothing.
class NameIndex {
 public:
  // How many names it has.
  [[nodiscard]] std::size_t Size() const { return size_; }

  void Clear() {
    slots_.clear();
    size_ = 0;
  }

  // Makes room for one name more, so that adding it does not fail.
  void MakeRoom() {
    if (2 * (size_ + 1) > slots_.size()) Grow();
  }

  // Takes up `name`, which stands at `index`. Returns false, changing nothing, when it has that
  // name. REQUIRES: `name_at` tells the same names as before; `index` is below 2^32 - 1.
  template <typename NameAt>
  bool Add(std::string_view name, std::size_t index, const NameAt& name_at) {
    assert(index < kEmpty);
    MakeRoom();
    const std::uint32_t hash = HashOf(name);
    Slot& slot = slots_[Seek(hash, name, name_at)];
    if (slot.index != kEmpty) return false;
    slot = {hash, static_cast<std::uint32_t>(index)};
    ++size_;
    return true;
  }

  // The index of `name`; nothing when it was not added. REQUIRES: as above.
  template <typename NameAt>
  [[nodiscard]] std::optional<std::size_t> Find(std::string_view name,
                                                const NameAt& name_at) const {
    if (size_ == 0) return std::nullopt;
    const Slot& slot = slots_[Seek(HashOf(name), name, name_at)];
    return slot.index == kEmpty ? std::nullopt : std::optional<std::size_t>(slot.index);
  }

 private:
  static constexpr std::uint32_t kEmpty = std::numeric_limits<std::uint32_t>::max();
  static constexpr std::size_t kFewestSlots = 16;

  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t index = kEmpty;
  };

  static std::uint32_t HashOf(std::string_view name) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(name));
  }

  // The slot of that name, or the empty one that it would be put into. There always is one.
  template <typename NameAt>
  std::size_t Seek(std::uint32_t hash, std::string_view name, const NameAt& name_at) const {
    std::size_t at = hash & (slots_.size() - 1);
    while (slots_[at].index != kEmpty &&
           (slots_[at].hash != hash || std::string_view(name_at(slots_[at].index)) != name)) {
      at = (at + 1) & (slots_.size() - 1);
    }
    return at;
  }

  void Grow() {
    std::vector<Slot> larger(slots_.empty() ? kFewestSlots : 2 * slots_.size());
    for (const Slot& slot : slots_) {
      if (slot.index == kEmpty) continue;
      std::size_t at = slot.hash & (larger.size() - 1);
      while (larger[at].index != kEmpty) at = (at + 1) & (larger.size() - 1);
      larger[at] = slot;
    }
    slots_.swap(larger);
  }

  std::vector<Slot> slots_;  // a power of two, at most half of them taken
  std::size_t size_ = 0;
};

}  // namespace orvane
