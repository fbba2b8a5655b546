#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "formats/text/watched_name.h"

// The trajectory of one optical marker: a sample for each frame, either a position that was
// measured or a dropout. Positions are in the units and axes of the document (Y up). Samples are
// counted from 0, whatever number their frame has in the file.
//
// Only positions take room; dropouts are kept as the gaps between them. So a short file whose lines
// are blank for a thousand markers takes no more memory than its bytes suggest.
namespace orvane {

struct TRCPosition {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

class TRCMarker {
 public:
  // Dropouts that follow each other: the samples from `begin` up to and without `end`.
  struct Gap {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t positions_before = 0;  // how many samples before `begin` are positions
  };

  explicit TRCMarker(std::string name) : name_(std::move(name)) {}

  // Whether the marker is to be written to marker files. It starts enabled.
  [[nodiscard]] bool IsEnabled() const { return enabled_; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }

  const std::string& Name() const { return name_.Get(); }
  // Renames the marker, one stored in a document too.
  void SetName(std::string name) { name_.Set(std::move(name)); }

  // Makes room for `count` positions in all.
  void ReserveFrames(std::size_t count) { positions_.reserve(count); }
  // Appends a sample that was measured.
  void AppendPosition(double x, double y, double z) {
    positions_.push_back({x, y, z});
    ++sample_count_;
  }
  void AppendDropout() { AppendDropouts(1); }
  // Appends `count` dropouts, in constant time.
  void AppendDropouts(std::size_t count);

  std::size_t SampleCount() const { return sample_count_; }
  // Puts the sample's position into `x`, `y`, `z` and returns whether it is present. Zeros for a
  // dropout, and past the end, where nothing is present.
  [[nodiscard]] bool GetSample(std::size_t index, double& x, double& y, double& z) const;
  // Overwrites a sample and makes it present. Returns false, changing nothing, past the end. Takes
  // time in proportion to what is behind the sample when it was a dropout, else constant time.
  [[nodiscard]] bool SetSample(std::size_t index, double x, double y, double z);

  // Multiplies all coordinates.
  // Intended: every dropout so far becomes a sample that is present, at the origin. Whoever needs
  // the dropouts looks at them before.
  void Scale(double factor);

  // The positions that were appended or set, in the order of their samples.
  std::span<const TRCPosition> Positions() const { return positions_; }
  // The samples that are none of those, in order; no two gaps touch. Scaling does not close them.
  std::span<const Gap> Gaps() const { return gaps_; }
  // How many samples there were when Scale was last called; all of those are present.
  std::size_t ScaledCount() const { return scaled_count_; }

 private:
  friend class TRCDocument;

  // The last gap that begins at or before sample `index`; null when there is none.
  const Gap* GapAtOrBefore(std::size_t index) const;
  void OpenGap(std::size_t gap_index, std::size_t sample, const TRCPosition& position);

  WatchedName name_;  // the owning document watches it
  bool enabled_ = true;
  std::vector<TRCPosition> positions_;
  std::vector<Gap> gaps_;
  std::size_t sample_count_ = 0;
  std::size_t scaled_count_ = 0;
};

}  // namespace orvane
