#include "cli/motion_output.h"

#include <algorithm>
#include <filesystem>

#include "cli/interruption.h"
#include "platform/interrupt.h"
#include "plugin/text/files.h"

namespace cli {
namespace {

// Only the last part counts: it is all that the plug-in is told of the user's path.
std::string CompletePath(const std::string& name) {
  std::filesystem::path path(name);
  path.replace_filename(orvane::WithExtension(path.filename().string(), ".htr"));
  return path.string();
}

}  // namespace

MotionOutput::MotionOutput(const std::string& name, bool replace)
    : path_(CompletePath(name)), file_(path_, replace) {
  const std::string reason = file_.WhyImpossible();
  if (!reason.empty()) throw CannotWrite(reason);
}

std::string MotionOutput::MakeRoom() {
  platform::HoldInterrupts();
  const std::filesystem::path path(path_);
  room_.emplace(path.has_parent_path() ? path.parent_path().string() : ".");
  if (!room_->Error().empty()) throw CannotWrite(room_->Error());
  written_ = room_->Path() + "/" + path.filename().string();
  return written_;
}

void MotionOutput::Deliver() {
  std::string error = file_.TakeOver(written_);
  StopIfInterrupted();
  if (error.empty()) error = file_.Deliver();
  if (!error.empty()) throw CannotWrite(error);
}

Failure MotionOutput::CannotWrite(const std::string& reason) const {
  const std::string advice = file_.IsTaken() ? "It is kept; --force replaces it." : "";
  return {ExitStatus::kInputOutput, {{path_, reason, advice}}};
}

bool IsMotionFileName(const std::string& name) {
  std::string extension = std::filesystem::path(CompletePath(name)).extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(), [](char letter) {
    return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return extension == ".htr";
}

}  // namespace cli
