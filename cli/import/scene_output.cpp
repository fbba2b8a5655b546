#include "cli/import/scene_output.h"

#include <algorithm>

#include "cli/common/failure.h"
#include "cli/common/input.h"
#include "cli/common/outputs.h"
#include "host/gltf/writer.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using host::gltf::Container;

// In lower case, with its full stop.
std::string Extension(const std::string& path) {
  std::string extension = platform::TextOf(platform::PathOf(path).extension());
  std::transform(extension.begin(), extension.end(), extension.begin(), [](char letter) {
    return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return extension;
}

host::gltf::WriteOptions OptionsFor(const std::string& path, bool plain) {
  const Container container = Extension(path) == ".gltf" ? Container::kText : Container::kBinary;
  return {container, platform::TextOf(platform::PathOf(path).stem()), plain};
}

// Takes the bytes of a scene, until the user interrupts the program or something goes wrong.
class SceneFile final : public host::gltf::FileSink {
 public:
  explicit SceneFile(platform::OutputFile& file) : file_(file) {}

  bool Take(std::string_view bytes) override {
    if (size_ == 0) platform::HoldInterrupts();
    size_ += bytes.size();
    error_ = file_.Append(bytes);
    return error_.empty() && !platform::Interrupted();
  }

  // What went wrong, in the system's words; empty for nothing.
  const std::string& Error() const { return error_; }

  // In bytes.
  std::size_t Size() const { return size_; }

 private:
  platform::OutputFile& file_;
  std::string error_;
  std::size_t size_ = 0;
};

}  // namespace

SceneOutput::SceneOutput(std::string path, bool replace, bool plain)
    : path_(std::move(path)), plain_(plain), file_(path_, replace) {
  const std::string reason = file_.WhyImpossible();
  if (!reason.empty()) throw CannotWrite(reason);
}

std::size_t SceneOutput::Deliver(const host::Scene& scene, const std::string& source) {
  SceneFile file(file_);
  const std::string refusal = host::gltf::WriteScene(scene, OptionsFor(path_, plain_), file);
  if (!refusal.empty()) throw Failure{ExitStatus::kRefused, {ComplainAbout(source, refusal)}};
  StopIfInterrupted();
  std::string error = file.Error();
  if (error.empty()) error = file_.Finish();
  StopIfInterrupted();
  if (error.empty()) error = file_.Deliver();
  if (!error.empty()) throw CannotWrite(error);
  return file.Size();
}

Failure SceneOutput::CannotWrite(const std::string& reason) const {
  return {ExitStatus::kInputOutput, {ComplainAboutOutput(path_, file_, reason)}};
}

bool IsSceneFileName(const std::string& path) {
  const std::string extension = Extension(path);
  return extension == ".glb" || extension == ".gltf";
}

}  // namespace cli
