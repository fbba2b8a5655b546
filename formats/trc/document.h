#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "formats/text/byte_source.h"
#include "formats/text/name_index.h"
#include "formats/trc/marker.h"
#include "formats/trc/points_view.h"
#include "formats/trc/read_observer.h"

// A marker file in memory: the values of its header, and its markers in the order of their columns.
// Unit codes are the length codes of formats/units.
namespace orvane {

// What becomes of the samples of a file that is read.
enum class TRCSamples {
  kKept,
  kLeftOut,  // the markers get none: what they hold is for the observer
};

// Owns its markers. Their addresses stay until Reset, the next reading or the end of the document.
class TRCDocument {
 public:
  TRCDocument() = default;
  TRCDocument(const TRCDocument&) = delete;
  TRCDocument& operator=(const TRCDocument&) = delete;

  // Deletes all markers and sets the header back to its defaults.
  // Intended: the camera rate stays as it is.
  void Reset();

  // Reads a marker file, in the place of what the document held. docs/formats/trc.md describes the
  // files, and what is let pass. Returns an empty text on success; otherwise the message to show as
  // it stands, with the document holding what was read up to that point. Columns whose name begins
  // with "Unnamed" get no marker unless `include_unnamed`. `observer` may be null and is not kept.
  //
  // Opens `file_name` (UTF-8), with ".TRC" added unless its fourth character from the end is a full
  // stop. When that fails, the message says so and the document is left untouched. When the file
  // cannot be read to its end, the message is the same and the document is empty.
  [[nodiscard]] std::string Read(const std::string& file_name, bool include_unnamed,
                                 TRCReadObserver* observer = nullptr);
  // As Read, on the bytes of a file that `source` has, all of them.
  [[nodiscard]] std::string ReadFrom(ByteSource& source, bool include_unnamed,
                                     TRCReadObserver* observer = nullptr,
                                     TRCSamples samples = TRCSamples::kKept);
  // As Read, on the bytes of a file. Nothing in the document refers to them afterwards.
  [[nodiscard]] std::string ReadBytes(std::string_view bytes, bool include_unnamed,
                                      TRCReadObserver* observer = nullptr);

  // The unit of all coordinates.
  std::int32_t Units() const { return units_; }
  void SetUnits(std::int32_t code) { units_ = code; }
  // Frames per second.
  // Intended: a whole number; the file's 59.94 is 59.
  std::int32_t DataRate() const { return data_rate_; }
  void SetDataRate(std::int32_t rate) { data_rate_ = rate; }
  // Frames per second of the cameras, which nothing here depends on.
  std::int32_t CameraRate() const { return camera_rate_; }
  void SetCameraRate(std::int32_t rate) { camera_rate_ = rate; }
  // Frames as the header announces them, which may be any number; the markers may hold more or
  // fewer samples.
  std::int32_t NumFrames() const { return num_frames_; }
  void SetNumFrames(std::int32_t count) { num_frames_ = count; }
  // The number of the first frame.
  std::int32_t FirstFrame() const { return first_frame_; }
  void SetFirstFrame(std::int32_t number) { first_frame_ = number; }

  unsigned MarkerCount() const { return static_cast<unsigned>(markers_.size()); }
  // Null when `index` is not below the count.
  TRCMarker* MarkerAt(std::size_t index);
  const TRCMarker* MarkerAt(std::size_t index) const;
  std::deque<TRCMarker>& markers() { return markers_; }
  const std::deque<TRCMarker>& markers() const { return markers_; }

  // Copies `marker` behind the others and returns the stored copy, which the document owns. Returns
  // null, adding nothing, when its name is taken (case counts). Takes constant time.
  TRCMarker* AddMarker(const TRCMarker& marker);

  // Makes all markers the columns of one block, in their order, and returns it: rows that are
  // appended to it are frames of all of them, until a marker is added or samples of one alone are
  // appended. Those that have fewer samples than others get dropouts. A document that was read is
  // that way from the beginning. Throws std::length_error or std::bad_alloc, changing nothing, when
  // they are more than there is memory for. REQUIRES: there is a marker.
  TRCSampleBlock& ShareBlock();

  // All samples as an array. The first time, or when something was appended since, it may take time
  // and memory for all of them: lines of the file that were shorter than others are filled up, and
  // markers that have fewer samples than others get dropouts. From then on the same array is
  // handed out, until markers or samples are added, or the document is reset, read or gone. Setting
  // samples and scaling change it in place. Throws ArrayTooLarge, changing nothing, for a document
  // that is nearly empty.
  [[nodiscard]] TRCPointsView PointsView();

  // The gaps of all markers, in their order, as TRCMarker::Gaps tells them.
  [[nodiscard]] std::vector<std::vector<TRCMarker::Gap>> Gaps() const;

  // Calls `visit` with the index of the marker, that of the sample, and x, y and z of all samples
  // that were measured or set, those of each marker in order.
  template <typename Visit>
  void VisitPositions(Visit visit) const {
    if (SharesBlock()) {
      return markers_.front().block_->VisitPositions(
          [&visit](std::size_t row, std::size_t column, const double* position) {
            visit(column, row, position);
          });
    }
    for (std::size_t marker = 0; marker < markers_.size(); ++marker) {
      for (std::size_t index = 0; index < markers_[marker].HeldCount(); ++index) {
        const double* const position = markers_[marker].PositionAt(index);
        if (position != nullptr) visit(marker, index, position);
      }
    }
  }

  // Rescales everything from the current unit to `code` and stores that as the unit. When the two
  // are the same nothing else happens; otherwise dropouts become present, as TRCMarker::Scale says.
  void ConvertUnits(std::int32_t code);
  // Multiplies all coordinates, as TRCMarker::Scale does.
  void Scale(double factor);

 private:
  // Tells the name of the marker at an index.
  [[nodiscard]] auto NameAt() const {
    return [this](std::size_t index) -> const std::string& { return markers_[index].Name(); };
  }
  void RefreshNames();
  [[nodiscard]] bool SharesBlock() const;
  void JoinColumns();
  void RequireProportionOfPoints() const;

  std::deque<TRCMarker> markers_;
  std::int32_t units_ = 0;
  std::int32_t data_rate_ = 60;
  std::int32_t camera_rate_ = 0;
  std::int32_t num_frames_ = 0;
  std::int32_t first_frame_ = 1;

  NameIndex by_name_;
  bool names_changed_ = false;
};

}  // namespace orvane
