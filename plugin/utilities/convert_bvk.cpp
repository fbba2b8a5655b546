#include "plugin/utilities/convert_bvk.h"

#include "plugin/exchange/attempt.h"
#include "plugin/utilities/conversion_run.h"
#include "plugin/utilities/marker_file.h"

namespace orvane {

ConvertBVK::ConvertBVK(MessageSink& messages, StringTable& strings, HINSTANCE module)
    : messages_(messages), strings_(strings), module_(module) {
  Load();
}

ConvertBVK::~ConvertBVK() { SaveSettings(); }

bool ConvertBVK::Convert(Interface* host) {
  if (host == nullptr) return false;
  interface = host;
  ConversionRun run({*this, mapping, document, messages_, strings_, module_}, *host);
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
  return orvane::WriteMarkerFile(path, document, *this);
}

void ConvertBVK::SaveSettings() noexcept {
  Attempt([this] { Save(); });
}

}  // namespace orvane
