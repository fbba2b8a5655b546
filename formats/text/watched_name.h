#pragma once

#include <string>
#include <utility>

// The name of a part of a document. The document finds its parts by name and lets itself be told
// when one of them is renamed, on the same thread. Nothing fails but for want of memory.
namespace orvane {

// A copy has the text and no watcher. One that is overwritten keeps its own watcher and tells it.
class WatchedName {
 public:
  WatchedName() = default;
  explicit WatchedName(std::string text) : text_(std::move(text)) {}
  WatchedName(const WatchedName& other) : text_(other.text_) {}
  // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): a text takes its own assignment
  WatchedName& operator=(const WatchedName& other) {
    Set(other.text_);
    return *this;
  }

  const std::string& Get() const { return text_; }

  void Set(std::string text) {
    text_ = std::move(text);
    if (changed_ != nullptr) *changed_ = true;
  }

  // From now on sets `changed`, which must outlive this name, to true whenever the name is set.
  void Watch(bool& changed) { changed_ = &changed; }

 private:
  std::string text_;
  bool* changed_ = nullptr;
};

}  // namespace orvane
