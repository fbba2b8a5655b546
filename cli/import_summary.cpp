#include "cli/import_summary.h"

#include "cli/messages.h"
#include "plugin/text/numbers.h"

namespace cli {
namespace {

using orvane::FormatInt;

std::string Count(std::size_t number) { return FormatInt(static_cast<std::int64_t>(number)); }

std::size_t KeysOf(const host::Node& node) {
  const host::TransformController* transform = node.Transform();
  if (transform == nullptr) return 0;
  return transform->Position().KeyCount() + transform->Rotation().KeyCount() +
         transform->Scale().KeyCount();
}

std::size_t KeysBelow(const host::Node& root) {
  std::size_t keys = 0;
  std::vector<const host::Node*> waiting = {&root};
  while (!waiting.empty()) {
    const host::Node* node = waiting.back();
    waiting.pop_back();
    keys += KeysOf(*node);
    waiting.insert(waiting.end(), node->Children().begin(), node->Children().end());
  }
  return keys;
}

std::string Range(const host::AnimationState& animation) {
  const int ticks = animation.TicksPerFrame();
  return FormatInt(animation.Range().Start() / ticks) + " to " +
         FormatInt(animation.Range().End() / ticks) + " at " + FormatInt(animation.FrameRate()) +
         " frames per second";
}

}  // namespace

void PrintImportSummary(const ImportedFile& file, const host::Scene& scene, std::ostream& out) {
  out << "Imported " << Printable(file.input) << '\n'
      << "  Nodes   " << Count(scene.NodeCount()) << '\n'
      << "  Keys    " << Count(KeysBelow(scene.Root())) << '\n'
      << "  Frames  " << Range(scene.Animation()) << '\n'
      << "  Scene   " << Printable(file.output) << " (" << Count(file.output_bytes) << " bytes)\n";
}

}  // namespace cli
