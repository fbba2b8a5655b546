#include <algorithm>
#include <unordered_set>

#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/scene/scene_report.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::FormatInt;

// Deeper nodes are not indented any further, so that a chain of any depth stays readable.
constexpr std::size_t kDeepestIndent = 30;

std::string Count(std::size_t number) { return FormatInt(static_cast<std::int64_t>(number)); }

std::string Times(std::size_t number) { return Counted(static_cast<std::int64_t>(number), "time"); }

// "59.94 (2997/50) frames per second".
std::string RateText(const std::optional<host::Rate>& rate) {
  if (!rate) return "the host's time";
  const auto& [numerator, denominator] = *rate;
  if (denominator == 1) return FramesPerSecond(numerator);
  const std::string text =
      orvane::FormatShortest(static_cast<double>(numerator) / static_cast<double>(denominator));
  const std::string fraction = " (" + FormatInt(numerator) + "/" + FormatInt(denominator) + ")";
  return text + fraction + " frames per second";
}

void PrintRecording(const host::Recording& recording, std::ostream& out) {
  out << "  Recording   " << Printable(recording.source) << ", in " << Printable(recording.unit)
      << (recording.turned_up ? ", turned to Y up" : "") << ", from frame "
      << FormatInt(recording.first_frame) << " on; viewers are shown " << RateText(recording.rate)
      << '\n';
}

void PrintHeader(const host::Scene& scene, std::ostream& out) {
  const host::AnimationState& animation = scene.Animation();
  out << "  Nodes       " << Count(scene.NodeCount()) << '\n'
      << "  Unit        " << orvane::FormatShortest(scene.MillimetersPerUnit()) << " mm\n"
      << "  Frame rate  " << FramesPerSecond(animation.FrameRate()) << ", "
      << Counted(animation.TicksPerFrame(), "tick") << " each\n"
      << "  Range       ticks " << FormatInt(animation.Range().Start()) << " to "
      << FormatInt(animation.Range().End()) << '\n'
      << "  Time        tick " << FormatInt(animation.Time()) << '\n'
      << "  Suspended   animate mode " << Times(animation.AnimateMode().SuspendDepth())
      << ", set-key mode " << Times(animation.SetKeyMode().SuspendDepth()) << '\n';
  if (scene.Recording()) PrintRecording(*scene.Recording(), out);
}

std::string Keys(const host::Node& node) {
  const host::TransformController& transform = *node.Transform();
  const std::pair<const char*, std::size_t> counts[] = {
      {"position", transform.Position().KeyCount()},
      {"rotation", transform.Rotation().KeyCount()},
      {"scale", transform.Scale().KeyCount()}};
  std::string keys;
  for (const auto& [what, count] : counts) {
    if (count > 0) keys += (keys.empty() ? "; keys: " : ", ") + (Count(count) + " " + what);
  }
  return keys;
}

std::string Gaps(const host::Node& node) {
  const std::size_t count = node.Measurement() ? node.Measurement()->gaps.size() : 0;
  if (count == 0) return "";
  return "; " + Count(count) + (count == 1 ? " gap" : " gaps");
}

std::string Line(const SceneTreeEntry& entry, bool selected) {
  const host::Node& node = *entry.node;
  std::string line(2 * std::min(entry.depth, kDeepestIndent), ' ');
  line += Printable(node.Name()) + " (" + node.ShownObject()->KindName() + ", " +
          node.Transform()->Rotation().KindName() + Keys(node) + Gaps(node) + ")";
  if (entry.depth > kDeepestIndent) line += " at depth " + Count(entry.depth);
  if (selected) line += " selected";
  return line;
}

}  // namespace

void PrintScenePage(const std::string& file, const host::Scene& scene, std::ostream& out) {
  out << Printable(file) << '\n';
  PrintHeader(scene, out);
  if (scene.NodeCount() == 0) return;
  out << "\nNodes\n";
  const std::unordered_set<const host::Node*> selection(scene.Selection().begin(),
                                                        scene.Selection().end());
  for (const SceneTreeEntry& entry : ListScene(scene)) {
    out << "  " << Line(entry, selection.count(entry.node) > 0) << '\n';
  }
}

}  // namespace cli
