#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "inspect/check/checked_file.h"
#include "inspect/summary/bounds.h"
#include "inspect/summary/frame_rate.h"

// A motion or marker file that is open in a page: what it is made of, and where everything in it
// is. Objects are its segments or its markers, in its order; objects and frames count from 0.
// Positions are in the file's unit of length and its axes.

namespace web {

// Why a file cannot be opened: a sentence, and the finding that it is, if it is one.
struct Refusal {
  std::string text;
  std::string code{};
  std::size_t line = 0;  // counted from 1; 0 without a place in the file
  std::size_t column = 0;
};

// What the file says of itself.
struct Header {
  std::int32_t first_frame = 0;
  std::optional<orvane::FrameRate> rate{};  // as its text says
  std::string rate_text{};
  std::int32_t rate_taken = 0;  // by the plug-in
  std::uint32_t length_unit = 0;
};

struct Gap {
  std::size_t object = 0;
  std::size_t begin = 0;  // the first frame that lacks the object
  std::size_t end = 0;    // the first that has it again
};

struct Contents {
  std::vector<std::string> objects;
  std::vector<std::int32_t> parents;  // indices; -1 for roots and for markers
  std::size_t frames = 0;
  std::vector<std::size_t> held;  // frames, by object
  std::vector<Gap> gaps;          // by object, then by frame
};

// Three numbers at [frame][object], NaN where a frame lacks the object.
struct Tracks {
  std::vector<float> positions;  // of joints in the world, or of markers
  std::vector<float> ends;       // of bones; empty for markers
  std::optional<orvane::Bounds> bounds;
  bool stands_along_z = false;  // as it seems
};

enum class CurveOf {
  kPosition,       // in the world
  kLocalPosition,  // against the parent
  kRotation,       // the file's angles about x, y and z in degrees
};

class Take {
 public:
  virtual ~Take() = default;
  Take(const Take&) = delete;
  Take& operator=(const Take&) = delete;

  [[nodiscard]] virtual bool IsMotion() const = 0;
  [[nodiscard]] virtual Header GetHeader() const = 0;
  [[nodiscard]] virtual Contents GetContents() const = 0;
  // Throws orvane::ArrayTooLarge when hardly anything would be in them.
  [[nodiscard]] virtual Tracks MakeTracks() const = 0;
  // Three numbers a frame, NaN in gaps. REQUIRES: there is such an object.
  [[nodiscard]] virtual std::vector<double> MakeCurve(std::size_t object, CurveOf what) const = 0;
  [[nodiscard]] virtual std::size_t ObjectCount() const = 0;

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] const orvane::CheckedFile& Checked() const { return checked_; }

 protected:
  explicit Take(std::string path) : path_(std::move(path)) {}

  void SetChecked(orvane::CheckedFile checked) { checked_ = std::move(checked); }

 private:
  std::string path_;
  orvane::CheckedFile checked_;
};

// Reads and checks the file `path`, whose name says what it is, as for the program. Throws a
// Refusal when it cannot be read, is refused, or holds nothing.
[[nodiscard]] std::unique_ptr<Take> OpenTake(const std::string& path);

}  // namespace web
