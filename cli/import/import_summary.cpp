#include "cli/import/import_summary.h"

#include <array>

#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/import/key_counts.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::FormatInt;

std::string Count(std::size_t number) { return FormatInt(static_cast<std::int64_t>(number)); }

// Where the keys are, when the animation range leaves some of them out.
std::string Place(const SceneKeys& keys, const host::AnimationState& animation) {
  const Interval range = animation.Range();
  if (keys.count == 0 || (keys.first >= range.Start() && keys.last <= range.End())) return "";
  const int ticks = animation.TicksPerFrame();
  return ", in " + orvane::FramesText({keys.first / ticks, keys.last / ticks});
}

std::string Range(const host::AnimationState& animation, bool is_kept) {
  const int ticks = animation.TicksPerFrame();
  const orvane::FrameSpan frames{animation.Range().Start() / ticks,
                                 animation.Range().End() / ticks};
  return FramesAtRate(frames, animation.FrameRate()) +
         (is_kept ? ", as before: one frame sets no range" : "");
}

// How many were set, unless that is all of them.
std::string Keys(std::size_t set, const SceneKeys& keys, const host::AnimationState& animation) {
  const std::string all = Count(keys.count);
  return (set == keys.count ? all : Count(set) + " set, " + all + " in the scene") +
         Place(keys, animation);
}

std::string SceneFile(const ImportedFile& file) {
  const std::string name = Printable(file.output);
  const std::string kept = file.is_plain ? ", for viewers alone" : "";
  return name + (file.is_delivered ? " (" + Count(file.output_bytes) + " bytes" + kept + ")"
                                   : " is not written");
}

// "4,920".
std::string Grouped(std::int64_t number) {
  constexpr std::size_t kGroup = 3;
  std::string text = FormatInt(number);
  for (std::size_t at = text.size(); at > kGroup; at -= kGroup) text.insert(at - kGroup, 1, ',');
  return text;
}

}  // namespace

const char* NameOf(orvane::ShownGaps gaps) {
  constexpr std::array kNames = {"hidden", "held", "at the origin"};
  return kNames[static_cast<std::size_t>(gaps)];
}

void PrintImportSummary(const ImportedFile& file, const host::Scene& scene, std::ostream& out) {
  const std::string keys = Keys(file.keys_set, KeysIn(scene), scene.Animation());
  out << (file.is_delivered ? "Imported " : "Would import ") << Printable(file.input) << '\n';
  if (!file.is_delivered && file.application) PrintTable(*file.application, out);
  out << "  Nodes   " << Count(scene.NodeCount()) << '\n'
      << "  Keys    " << keys << '\n'
      << "  Frames  " << Range(scene.Animation(), file.keeps_range) << '\n';
  if (file.samples.missing > 0) {
    out << "  Gaps    " << Grouped(file.samples.missing) << " of " << Grouped(file.samples.all)
        << (file.samples.all == 1 ? " sample" : " samples") << " missing: " << NameOf(file.gaps)
        << '\n';
  }
  if (file.chosen_size) {
    out << "  Size    " << orvane::FormatShortest(*file.chosen_size)
        << " mm, chosen; --size sets it, the dialog's own is 1\n";
  }
  out << "  Scene   " << SceneFile(file) << '\n';
  if (!file.is_checked) out << "  Report  none: --no-report\n";
}

}  // namespace cli
