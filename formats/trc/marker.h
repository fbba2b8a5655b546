#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "formats/text/watched_name.h"
#include "formats/trc/sample_block.h"

// The trajectory of one optical marker: a sample for each frame, either a position that was
// measured or a dropout. Positions are in the units and axes of the document (Y up). Samples are
// counted from 0, whatever number their frame has in the file.
namespace orvane {

struct TRCPosition {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

// A marker is a column of a block of samples. Those of a document that was read share one; one that
// is made by hand, or changed in a way that the others are not, has a block of its own.
class TRCMarker {
 public:
  using Gap = TRCSampleBlock::Gap;

  explicit TRCMarker(std::string name) : name_(std::move(name)) {}
  // A copy has a block of its own.
  TRCMarker(const TRCMarker& other);
  TRCMarker& operator=(const TRCMarker& other);
  ~TRCMarker() = default;

  // Whether the marker is to be written to marker files. It starts enabled.
  [[nodiscard]] bool IsEnabled() const { return enabled_; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }

  const std::string& Name() const { return name_.Get(); }
  // Renames the marker, one stored in a document too.
  void SetName(std::string name) { name_.Set(std::move(name)); }

  // Appends a sample that was measured. The first time that this, or what else appends, is done to
  // one marker of those that share a block, it takes time for all samples of the marker.
  void AppendPosition(double x, double y, double z) { Own().AppendPosition(x, y, z); }
  void AppendDropout() { AppendDropouts(1); }
  // Appends `count` dropouts, in constant time.
  void AppendDropouts(std::size_t count) { Own().AppendDropouts(count); }

  std::size_t SampleCount() const { return block_ == nullptr ? 0 : block_->RowCount(); }
  // Puts the sample's position into `x`, `y`, `z` and returns whether it is present. Zeros for a
  // dropout, and past the end, where nothing is present. Takes constant time.
  [[nodiscard]] bool GetSample(std::size_t index, double& x, double& y, double& z) const {
    const double* const position = PositionAt(index);
    if (position == nullptr) {
      x = y = z = 0.0;
      return index < scaled_count_;
    }
    x = position[0];
    y = position[1];
    z = position[2];
    return true;
  }
  // Overwrites a sample and makes it present. Returns false, changing nothing, past the end. Takes
  // time in proportion to the samples when it was a dropout, else constant time.
  [[nodiscard]] bool SetSample(std::size_t index, double x, double y, double z);

  // Multiplies all coordinates.
  // Intended: every dropout so far becomes a sample that is present, at the origin. Whoever needs
  // the dropouts looks at them before.
  void Scale(double factor);

  // The x, y and z of a sample that was measured or set; null for all others. Lives until samples
  // are appended or set.
  [[nodiscard]] const double* PositionAt(std::size_t index) const {
    return block_ == nullptr ? nullptr : block_->PositionAt(index, column_);
  }
  // The samples that were not measured or set, in order; no two gaps touch. Scaling does not close
  // them. Takes time in proportion to the samples; those of all markers at once are had from the
  // document.
  [[nodiscard]] std::vector<Gap> Gaps() const;

 private:
  friend class TRCDocument;

  // Behind so many samples there are dropouts alone.
  [[nodiscard]] std::size_t HeldCount() const {
    return block_ == nullptr ? 0 : block_->HeldRowCount();
  }

  TRCSampleBlock& Own();
  [[nodiscard]] std::shared_ptr<TRCSampleBlock> CopyOfColumn() const;

  WatchedName name_;  // the owning document watches it
  bool enabled_ = true;
  std::shared_ptr<TRCSampleBlock> block_;  // null while there are no samples
  std::size_t column_ = 0;
  std::size_t scaled_count_ = 0;  // how many samples there were when Scale was last called
};

}  // namespace orvane
