#include "cli/export/motion_output.h"

#include <algorithm>
#include <cassert>
#include <filesystem>

#include "cli/common/failure.h"
#include "cli/common/outputs.h"
#include "formats/text/files.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using platform::PathOf;
using platform::TextOf;

}  // namespace

// Only the last part counts: it is all that the plug-in is told of the user's path.
std::string MotionFilePath(const std::string& name) {
  std::filesystem::path path = PathOf(name);
  path.replace_filename(PathOf(orvane::WithExtension(TextOf(path.filename()), ".htr")));
  return TextOf(path);
}

MotionOutput::MotionOutput(const std::string& name, bool replace)
    : path_(MotionFilePath(name)), file_(path_, replace) {
  const std::string reason = file_.WhyImpossible();
  if (!reason.empty()) throw CannotWrite(reason);
}

std::string MotionOutput::MakeRoom() {
  assert(!room_);
  platform::HoldInterrupts();
  room_.emplace(file_.Folder());
  if (!room_->Error().empty()) throw CannotWrite(room_->Error());
  written_ = room_->Path() + "/" + TextOf(PathOf(path_).filename());
  return written_;
}

void MotionOutput::Deliver() {
  assert(room_);
  std::string error = file_.TakeOver(written_);
  StopIfInterrupted();
  if (error.empty()) error = file_.Deliver();
  if (!error.empty()) throw CannotWrite(error);
}

Failure MotionOutput::CannotWrite(const std::string& reason) const {
  return {ExitStatus::kInputOutput, {ComplainAboutOutput(path_, file_, reason)}};
}

bool IsMotionFileName(const std::string& name) {
  std::string extension = TextOf(PathOf(MotionFilePath(name)).extension());
  std::transform(extension.begin(), extension.end(), extension.begin(), [](char letter) {
    return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return extension == ".htr";
}

}  // namespace cli
