#include "cli/common/scene_input.h"

#include <optional>

#include "cli/common/failure.h"
#include "formats/text/files.h"
#include "host/gltf/reader.h"
#include "platform/input_file.h"

namespace cli {

void ReadSceneFile(const std::string& path, host::Scene& scene) {
  const std::string reason = platform::WhyUnreadable(path);
  if (!reason.empty()) throw Failure{ExitStatus::kInputOutput, {{path, reason, ""}}};
  const std::optional<std::string> bytes = orvane::ReadFileBytes(path);
  if (!bytes) throw Failure{ExitStatus::kInputOutput, {{path, "could not be read", ""}}};
  const std::string refusal = host::gltf::ReadScene(*bytes, scene);
  if (!refusal.empty()) throw Failure{ExitStatus::kRefused, {{path, refusal, ""}}};
}

}  // namespace cli
