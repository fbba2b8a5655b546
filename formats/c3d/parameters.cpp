#include "formats/c3d/parameters.h"

#include <algorithm>
#include <cstddef>
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

void AddPoints(C3dParameterSection& section, const C3dParameters& said, std::uint32_t data_block) {
  const auto markers = static_cast<std::uint32_t>(said.labels.size());
  section.AddGroup("POINT", "Markers");
  section.AddWords("USED", "Number of markers", {markers});
  section.AddFloat("SCALE", "Negative: coordinates are real numbers", kC3dScale);
  section.AddFloat("RATE", "Frames a second", said.frames_per_second);
  section.AddWords("DATA_START", "Block of the first frame", {data_block});
  section.AddWords("FRAMES", "Number of frames, 65535 at most",
                   {std::min(said.frame_count, kMostC3dWord)});
  if (IsBeyondC3dWord(said.frame_count)) {
    section.AddFloat("LONG_FRAMES", "Number of frames", static_cast<float>(said.frame_count));
  }
  AddList(section, "LABELS", "Names of markers", said.labels);
  AddList(section, "DESCRIPTIONS", "", std::vector<std::string_view>(markers, " "));
  section.AddText("UNITS", "Unit of lengths", said.unit);
  section.AddText("X_SCREEN", "Axis that points to the right", "+X");
  section.AddText("Y_SCREEN", "Axis that points up", "+" + std::string(said.vertical_axis));
}

void AddTrial(C3dParameterSection& section, const C3dParameters& said) {
  const auto words = [](std::uint32_t number) {
    return std::vector<std::uint32_t>{number & kMostC3dWord, number >> 16U};
  };
  section.AddGroup("TRIAL", "The recording");
  section.AddWords("ACTUAL_START_FIELD", "Number of the first frame, low word and high word",
                   words(said.first_frame));
  section.AddWords("ACTUAL_END_FIELD", "Number of the last frame, low word and high word",
                   words(said.first_frame + said.frame_count - 1));
}

std::string MakeWithDataAt(std::uint32_t data_block, const C3dParameters& said) {
  C3dParameterSection section;
  AddPoints(section, said, data_block);
  section.AddGroup("ANALOG", "");
  section.AddWords("USED", "Number of analog channels", {0});
  section.AddGroup("FORCE_PLATFORM", "");
  section.AddWords("USED", "Number of force platforms", {0});
  AddTrial(section, said);
  section.AddGroup("ORVANE", "What single precision has no room for");
  section.AddText("RATE", "Frames a second, exactly", said.rate);
  return section.Finish();
}

}  // namespace

std::string MakeC3dParameters(const C3dParameters& parameters) {
  // The number of the block is as long as any other.
  const std::size_t blocks = MakeWithDataAt(0, parameters).size() / kC3dBlock;
  return MakeWithDataAt(kC3dParameterBlock + static_cast<std::uint32_t>(blocks), parameters);
}

}  // namespace orvane
