#pragma once

#include <cstdint>

#include "plugin/services/stored_record.h"

// What the user may choose for every import and export.
namespace orvane {

class ExchangeOptions : public StoredRecord {
 public:
  // Sets startFrame and endFrame; a last frame that does not fit is moved to the nearest that does.
  void SetFrameBounds(std::int32_t first, std::int64_t last);

  bool range = false;  // only the frames from startFrame to endFrame, or all there are

  // Frame numbers. The importers and the exporter set the first two; they are also the bounds that
  // the dialog accepts.
  std::int32_t startFrame = 1;
  std::int32_t endFrame = 1;
  std::int32_t frameOffset = 0;  // added to the frame numbers that come out

  double scaleFactor = 1.0;  // multiplies all lengths

 protected:
  using StoredRecord::StoredRecord;
  ~ExchangeOptions() = default;
};

}  // namespace orvane
