#include "plugin/utilities/convert_bvk.h"

#include <fstream>
#include <ios>
#include <string_view>

#include "formats/bvk/writer.h"
#include "formats/text/files.h"
#include "platform/local_time.h"
#include "plugin/exchange/attempt.h"
#include "plugin/utilities/conversion_run.h"
#include "sdk/skelderutil/filename.h"

namespace orvane {

ConvertBVK::ConvertBVK(MessageSink& messages, StringTable& strings, HINSTANCE module)
    : messages_(messages), strings_(strings), module_(module) {
  store_.Open("OrvaneFileIO", "Skelder", "ConvertBVK");
  LoadSettings();
}

ConvertBVK::~ConvertBVK() { SaveSettings(); }

bool ConvertBVK::Convert(Interface* host) {
  if (host == nullptr) return false;
  interface = host;
  ConversionRun run(*this, messages_, strings_, module_);
  run_ = &run;
  const bool done = run.Run();
  run_ = nullptr;
  interface = nullptr;
  return done;
}

void ConvertBVK::End() noexcept {
  if (run_ != nullptr) run_->End();
  interface = nullptr;
}

bool ConvertBVK::WriteMarkerFile(const std::string& path) {
  std::ofstream file = CreateFileForText(path);
  if (!file.is_open()) return false;
  CStr name;
  SplitFilename(path.c_str(), nullptr, &name, nullptr);
  const std::string date_time = platform::LocalTimeText();
  BvkDetails details{name.data(), date_time, {}};
  if (offset) details.offset = BvkOffset{offsetX, offsetY, offsetZ, trcSpace};
  PrintBvk(document, details, [&file](std::string_view text) {
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
  });
  return true;
}

void ConvertBVK::LoadSettings() {
  store_.ReadString("MNMPath", mnmPath);
  store_.ReadString("InputPath", inputPath);
  store_.ReadString("OutputPath", outputPath);
  store_.ReadFlag("Filter", filter);
  store_.ReadFlag("Batch", batch);
  store_.ReadFlag("TRCName", trcName);
  store_.ReadFlag("TRCSpace", trcSpace);
  store_.ReadFlag("Offset", offset);
  store_.ReadFloat("OffsetX", offsetX);
  store_.ReadFloat("OffsetY", offsetY);
  store_.ReadFloat("OffsetZ", offsetZ);
}

void ConvertBVK::SaveSettings() noexcept {
  Attempt([this] {
    store_.WriteString("MNMPath", mnmPath);
    store_.WriteString("InputPath", inputPath);
    store_.WriteString("OutputPath", outputPath);
    store_.WriteFlag("Filter", filter);
    store_.WriteFlag("Batch", batch);
    store_.WriteFlag("TRCName", trcName);
    store_.WriteFlag("TRCSpace", trcSpace);
    store_.WriteFlag("Offset", offset);
    store_.WriteFloat("OffsetX", offsetX);
    store_.WriteFloat("OffsetY", offsetY);
    store_.WriteFloat("OffsetZ", offsetZ);
  });
}

}  // namespace orvane
