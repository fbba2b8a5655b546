#include "host/base/misuse_log.h"

#include <utility>

namespace host {

void MisuseLog::Report(std::string message) {
  ++count_;
  if (messages_.size() < kKeptMessages) messages_.push_back(std::move(message));
}

}  // namespace host
