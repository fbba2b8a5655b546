#include "cli/rewrite/written_words.h"

#include <string_view>

namespace cli {
namespace {

// Null where the format that was read has no other words for it.
struct Words {
  std::string_view code;
  const char* in_csv;
  const char* in_bvh;
  const char* in_c3d;
};

constexpr char kFrames[] = "The frames that are there are written.";
constexpr char kMarkers[] = "The markers that are there are written.";
constexpr char kNotSaid[] = "The new file does not say it.";
constexpr char kTimes[] = "Times go by it as the file says it.";
constexpr char kNoTimes[] = "The new file holds no times: frames follow each other at its rate.";
constexpr char kNoField[] = "Nothing is multiplied by it, and the new file does not say it.";
constexpr char kAxis[] =
    "Y is taken for up, and the new file does not say which axis is; --up z turns the skeleton, "
    "and --up y says that it stands along Y.";
constexpr char kRoot[] = "Such a segment is taken for a root.";
constexpr char kRoots[] = "Segments without a parent are taken for roots.";
constexpr char kNoParent[] = "Such a segment has no parent, and is taken for a root.";

constexpr Words kWords[] = {
    {"htr-scale-factor", kNoField, kNoField, nullptr},
    {"htr-axis-ignored", kAxis, kAxis, nullptr},
    {"htr-rate-cut", kTimes, kTimes, nullptr},
    {"htr-rate-inexact", kTimes, kTimes, nullptr},
    {"htr-parent-unknown", kRoot, kRoot, nullptr},
    {"htr-root-missing", kRoots, kRoots, nullptr},
    {"htr-root-second", nullptr, "The new file holds one of them, which --root names.", nullptr},
    {"htr-segment-unlinked", kNoParent, kNoParent, nullptr},
    {"htr-frame-count",
     "All that are there are written; a segment that holds fewer than others has empty cells "
     "behind them.",
     "All that are there are written; a segment that holds fewer than others stays as it is in the "
     "last of them.",
     nullptr},
    {"htr-frames-unannounced", kFrames, nullptr, nullptr},
    {"htr-frames-too-many", kFrames, kFrames, nullptr},
    {"htr-motion-missing", "The cells of such a segment are empty in every frame.", nullptr,
     nullptr},
    {"trc-rate-cut", kTimes, nullptr, nullptr},
    {"trc-rate-inexact", kTimes, nullptr, nullptr},
    {"trc-time-unreadable", nullptr, nullptr, kNoTimes},
    {"trc-time-differs", nullptr, nullptr, kNoTimes},
    {"trc-camera-rate", kNotSaid, nullptr, kNotSaid},
    {"trc-camera-rate-cut", kNotSaid, nullptr, kNotSaid},
    {"trc-marker-count", kMarkers, nullptr, kMarkers},
    {"trc-frame-count", kFrames, nullptr, kFrames},
    {"trc-frames-unannounced", kFrames, nullptr, kFrames},
    {"trc-frames-too-many", kFrames, nullptr, kFrames},
};

const char* In(OutputFormat format, const Words& words) {
  switch (format) {
    case OutputFormat::kCsv:
      return words.in_csv;
    case OutputFormat::kBvh:
      return words.in_bvh;
    case OutputFormat::kC3d:
      return words.in_c3d;
    case OutputFormat::kHtr:
    case OutputFormat::kTrc:
      break;
  }
  return nullptr;
}

}  // namespace

Consequences ConsequencesIn(OutputFormat format) {
  Consequences consequences;
  for (const Words& words : kWords) {
    const char* const text = In(format, words);
    if (text != nullptr) consequences.emplace_back(words.code, text);
  }
  return consequences;
}

}  // namespace cli
