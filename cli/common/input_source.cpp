#include "cli/common/input_source.h"

#include "cli/common/failure.h"
#include "platform/input_file.h"

namespace cli {
namespace {

Failure Unreadable(const std::string& name, const std::string& why) {
  return {ExitStatus::kInputOutput, {{name, why, ""}}};
}

Failure BrokenOff(const std::string& name) {
  return Unreadable(name, "could not be read to its end");
}

const std::string& ReadablePath(const InputFile& file) {
  const std::string why = platform::WhyUnreadable(file.path);
  if (!why.empty()) throw Unreadable(file.name, why);
  return file.path;
}

}  // namespace

InputSource::InputSource(const InputFile& file) : name_(file.name), source_(ReadablePath(file)) {
  if (!source_.IsOpen()) throw BrokenOff(name_);
}

std::size_t InputSource::Read(std::span<char> block) {
  const std::size_t count = source_.Read(block);
  if (source_.HasFailed()) throw BrokenOff(name_);
  return count;
}

}  // namespace cli
