#include "cli/import/import_summary.h"

#include <algorithm>
#include <limits>

#include "cli/common/messages.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::FormatInt;

std::string Count(std::size_t number) { return FormatInt(static_cast<std::int64_t>(number)); }

// The keys of a scene.
struct KeySummary {
  std::size_t count = 0;
  TimeValue first = std::numeric_limits<TimeValue>::max();  // of them all, in ticks
  TimeValue last = std::numeric_limits<TimeValue>::min();
};

template <typename Controller>
void Include(const Controller& controller, KeySummary& keys) {
  const std::size_t count = controller.KeyCount();
  if (count == 0) return;
  keys.count += count;
  keys.first = std::min(keys.first, controller.KeyTick(0));
  keys.last = std::max(keys.last, controller.KeyTick(count - 1));
}

KeySummary KeysBelow(const host::Node& root) {
  KeySummary keys;
  std::vector<const host::Node*> waiting = {&root};
  while (!waiting.empty()) {
    const host::Node* node = waiting.back();
    waiting.pop_back();
    if (const host::TransformController* transform = node->Transform(); transform != nullptr) {
      Include(transform->Position(), keys);
      Include(transform->Rotation(), keys);
      Include(transform->Scale(), keys);
    }
    waiting.insert(waiting.end(), node->Children().begin(), node->Children().end());
  }
  return keys;
}

// Where the keys are, when the animation range leaves some of them out.
std::string Place(const KeySummary& keys, const host::AnimationState& animation) {
  const Interval range = animation.Range();
  if (keys.count == 0 || (keys.first >= range.Start() && keys.last <= range.End())) return "";
  const int ticks = animation.TicksPerFrame();
  return ", in frames " + FormatInt(keys.first / ticks) + " to " + FormatInt(keys.last / ticks);
}

std::string Range(const host::AnimationState& animation) {
  const int ticks = animation.TicksPerFrame();
  return FormatInt(animation.Range().Start() / ticks) + " to " +
         FormatInt(animation.Range().End() / ticks) + " at " + FormatInt(animation.FrameRate()) +
         " frames per second";
}

}  // namespace

void PrintImportSummary(const ImportedFile& file, const host::Scene& scene, std::ostream& out) {
  const KeySummary keys = KeysBelow(scene.Root());
  out << "Imported " << Printable(file.input) << '\n'
      << "  Nodes   " << Count(scene.NodeCount()) << '\n'
      << "  Keys    " << Count(keys.count) << Place(keys, scene.Animation()) << '\n'
      << "  Frames  " << Range(scene.Animation()) << '\n'
      << "  Scene   " << Printable(file.output) << " (" << Count(file.output_bytes) << " bytes)\n";
  if (file.unreported) out << "  Report  none: --no-report\n";
}

}  // namespace cli
