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

}  // namespace

SceneOutput::SceneOutput(std::string path, bool replace, bool plain)
    : path_(std::move(path)), plain_(plain), file_(path_, replace) {
  const std::string reason = file_.WhyImpossible();
  if (!reason.empty()) throw CannotWrite(reason);
}

std::size_t SceneOutput::Deliver(const host::Scene& scene, const std::string& source) {
  const host::gltf::WrittenScene written = host::gltf::WriteScene(scene, OptionsFor(path_, plain_));
  if (!written.refusal.empty()) {
    throw Failure{ExitStatus::kRefused, {ComplainAbout(source, written.refusal)}};
  }
  platform::HoldInterrupts();
  std::string error = file_.Write(written.bytes);
  StopIfInterrupted();
  if (error.empty()) error = file_.Deliver();
  if (!error.empty()) throw CannotWrite(error);
  return written.bytes.size();
}

Failure SceneOutput::CannotWrite(const std::string& reason) const {
  return {ExitStatus::kInputOutput, {ComplainAboutOutput(path_, file_, reason)}};
}

bool IsSceneFileName(const std::string& path) {
  const std::string extension = Extension(path);
  return extension == ".glb" || extension == ".gltf";
}

}  // namespace cli
