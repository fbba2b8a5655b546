#include "plugin/utilities/marker_file.h"

#include <fstream>
#include <ios>
#include <string_view>

#include "formats/bvk/writer.h"
#include "formats/text/files.h"
#include "platform/local_time.h"
#include "sdk/skelderutil/filename.h"

namespace orvane {

bool WriteMarkerFile(const std::string& path, const TRCDocument& document,
                     const ConvertBVKSettings& settings) {
  std::ofstream file = CreateFileForText(path);
  if (!file.is_open()) return false;
  CStr name;
  SplitFilename(path.c_str(), nullptr, &name, nullptr);
  const std::string date_time = platform::LocalTimeText();
  BvkDetails details{name.data(), date_time, {}};
  if (settings.offset) {
    details.offset =
        BvkOffset{settings.offsetX, settings.offsetY, settings.offsetZ, settings.trcSpace};
  }
  PrintBvk(document, details, [&file](std::string_view text) {
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
  });
  return true;
}

}  // namespace orvane
