#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/bvh/number_text.h"
#include "formats/htr/document.h"

// What a BVH file of a document will be, and what is lost on the way, told before anything is
// written. Frames and roots are counted from 0. Pointers are to the document's segments. Nothing
// fails but for want of memory. May be called from any thread, as long as no other one changes the
// document.
namespace orvane {

// Which joints beside the root get channels of their position.
enum class BvhPositions {
  kRoot,  // none: those whose translation changes are held at their base translation
  kAll,   // those whose translation changes
};

enum class BvhNumbers {
  kFitting,   // as many decimals as place every joint to less than 1e-5 of the height
  kShortest,  // the shortest text that reads back as the same number
  kDecimals,  // as many decimals as asked for
};

struct BvhOptions {
  std::size_t root = 0;  // a file holds one: this one, in the document's order
  BvhPositions positions = BvhPositions::kRoot;
  BvhNumbers numbers = BvhNumbers::kFitting;
  int decimals = 6;  // of kDecimals: 0 to 20
  // Seconds of a frame, in place of one by the document's whole number of frames a second.
  std::optional<double> frame_time;
};

struct BvhJoint {
  const HtrSegment* segment = nullptr;
  std::size_t depth = 0;  // 0 for the root
  std::string name;
  Vector3 offset;  // from the parent; zero where the position has channels
  bool has_positions = false;
  std::optional<Vector3> end;  // of a bone that no other hangs from, in the joint's own space
};

struct BvhRefusal {
  enum class Reason {
    kNoRoot,     // there is no root of that number
    kFrameTime,  // the time of a frame is not above 0, or is infinite
    kNotFinite,  // a number is none, or infinite
  };
  Reason reason = Reason::kNoRoot;
  const HtrSegment* segment = nullptr;  // of kNotFinite
  std::optional<std::size_t> frame;     // of kNotFinite, unless it is the base position
};

// What the document says and the file does not.
struct BvhLosses {
  struct NewName {
    const HtrSegment* segment = nullptr;
    std::string name;
    bool is_respelled = false;  // for blanks or braces in it, or since it was empty
    bool is_numbered = false;   // since a joint before it is called the same
  };
  // A segment that changes its translation, in a file of positions of the root alone.
  struct HeldTranslation {
    const HtrSegment* segment = nullptr;
    double greatest_error_mm = 0.0;  // how far from its base translation it gets
    std::size_t frame = 0;           // where that is
  };
  // A segment whose frames end before the file's, and which is held as it is in the last one.
  struct HeldFrames {
    const HtrSegment* segment = nullptr;
    std::size_t frames = 0;  // that it has; with none it is held in its base position
  };
  struct Scale {
    const HtrSegment* segment = nullptr;
    std::size_t frames = 0;  // with a scale other than 1
    double farthest = 1.0;   // the scale that is farthest from 1
  };

  std::vector<NewName> names;
  std::vector<HeldTranslation> translations;
  std::vector<HeldFrames> frames;
  std::vector<Scale> scales;
  std::size_t turned_in_base = 0;  // segments with a base rotation, of which a file keeps none
  std::vector<const HtrSegment*> other_roots;
  std::size_t segments_of_other_roots = 0;    // those with them
  std::vector<const HtrSegment*> unattached;  // segments that hang from no root
  std::optional<std::int32_t> first_frame;    // its number, where that is not 1
  bool has_no_frames = false;                 // the file's one frame is the base position
};

struct BvhPlan {
  std::optional<BvhRefusal> refusal;  // nothing else is told then
  std::vector<BvhJoint> joints;       // depth first, in the document's order
  std::size_t frame_count = 0;        // 1 at least
  double frame_time = 0.0;            // in seconds
  double height = 0.0;                // of the box around the joints, in the document's unit
  BvhNumberText lengths;
  BvhNumberText angles;
  BvhLosses losses;
};

// How many files it takes to have all of `document`.
[[nodiscard]] std::size_t CountBvhRoots(const HtrDocument& document);

// Takes time in proportion to the document. The plan points into `document`, which must outlive it
// and not change.
[[nodiscard]] BvhPlan PlanBvh(const HtrDocument& document, const BvhOptions& options);

}  // namespace orvane
