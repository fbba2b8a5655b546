#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/export.h"

// Where the host notes that its caller broke the rules of the SDK: used a deleted node, deleted
// what belongs to the scene, attached a node below itself. The host carries on without doing what
// was asked; tests and programs look here afterwards.

namespace host {

class SKELDER_API MisuseLog {
 public:
  // The number of messages that are kept; further ones are only counted.
  static constexpr std::size_t kKeptMessages = 100;

  void Report(std::string message);

  std::size_t Count() const { return count_; }

  // The first messages, in the order of their report.
  const std::vector<std::string>& Messages() const { return messages_; }

 private:
  std::size_t count_ = 0;
  std::vector<std::string> messages_;
};

}  // namespace host
