#include "formats/c3d/parameters.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "formats/c3d/parameter_section.h"
#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr std::size_t kMostTexts = 255;  // in one parameter

// Lists of any length are parted: LABELS, LABELS2, LABELS3 and so on.
void AddList(C3dParameterSection& section, const std::string& name, std::string_view description,
             const std::vector<std::string_view>& texts) {
  std::size_t begin = 0;
  for (int number = 1; begin < texts.size() || number == 1; ++number) {
    std::vector<std::string_view> part;
    part.reserve(std::min(kMostTexts, texts.size() - begin));
    std::size_t longest = 0;
    for (; begin < texts.size() && part.size() < kMostTexts; ++begin) {
      longest = std::max(longest, texts[begin].size());
      if (longest * (part.size() + 1) > C3dParameterSection::kMostDataBytes) break;
      part.push_back(texts[begin]);
    }
    section.AddTexts(number == 1 ? name : name + FormatInt(number), description, part);
  }
}

void AddPoints(C3dParameterSection& section, const C3dPlan& plan, const C3dSaid& said,
               std::uint32_t data_block) {
  const std::string vertical = "+" + std::string(AxisName(said.vertical_axis));
  section.AddGroup("POINT", "Markers");
  section.AddWords("USED", "Number of markers", {static_cast<std::uint32_t>(plan.markers.size())});
  section.AddFloat("SCALE", "Negative: coordinates are real numbers", kC3dScale);
  section.AddFloat("RATE", "Frames a second", static_cast<float>(plan.frames_per_second));
  section.AddWords("DATA_START", "Block of the first frame", {data_block});
  section.AddWords("FRAMES", "Number of frames, 65535 at most",
                   {std::min(plan.frame_count, kMostC3dWord)});
  if (HasLongC3dFrames(plan)) {
    section.AddFloat("LONG_FRAMES", "Number of frames", static_cast<float>(plan.frame_count));
  }
  AddList(section, "LABELS", "Names of markers", {plan.labels.begin(), plan.labels.end()});
  AddList(section, "DESCRIPTIONS", "",
          std::vector<std::string_view>(plan.markers.size(), std::string_view(" ")));
  section.AddText("UNITS", "Unit of lengths", said.unit);
  section.AddText("X_SCREEN", "Axis that points to the right", "+X");
  section.AddText("Y_SCREEN", "Axis that points up", vertical);
}

void AddTrial(C3dParameterSection& section, const C3dPlan& plan) {
  const auto words = [](std::uint32_t number) {
    return std::vector<std::uint32_t>{number & kMostC3dWord, number >> 16U};
  };
  section.AddGroup("TRIAL", "The recording");
  section.AddWords("ACTUAL_START_FIELD", "Number of the first frame, low word and high word",
                   words(plan.first_frame));
  section.AddWords("ACTUAL_END_FIELD", "Number of the last frame, low word and high word",
                   words(plan.first_frame + plan.frame_count - 1));
}

}  // namespace

std::string MakeC3dParameters(const C3dPlan& plan, const C3dSaid& said) {
  const auto with_data_at = [&plan, &said](std::uint32_t block) {
    C3dParameterSection section;
    AddPoints(section, plan, said, block);
    section.AddGroup("ANALOG", "");
    section.AddWords("USED", "Number of analog channels", {0});
    section.AddGroup("FORCE_PLATFORM", "");
    section.AddWords("USED", "Number of force platforms", {0});
    AddTrial(section, plan);
    section.AddGroup("ORVANE", "What single precision has no room for");
    section.AddText("RATE", "Frames a second, exactly", said.rate);
    return section.Finish();
  };
  // The number of the block is as long as any other.
  const std::size_t blocks = with_data_at(0).size() / kC3dBlock;
  return with_data_at(kC3dParameterBlock + static_cast<std::uint32_t>(blocks));
}

}  // namespace orvane
