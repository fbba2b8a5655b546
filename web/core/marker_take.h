#pragma once

#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "web/core/take.h"

namespace web {

class MarkerTake final : public Take {
 public:
  // Reads and checks the file. Throws a Refusal.
  explicit MarkerTake(const std::string& path);

  [[nodiscard]] bool IsMotion() const override { return false; }
  [[nodiscard]] Header GetHeader() const override;
  [[nodiscard]] Contents GetContents() const override;
  [[nodiscard]] Tracks MakeTracks() const override;
  // Markers have no rotation, and hang from nothing: what is asked for is where they are.
  [[nodiscard]] std::vector<double> MakeCurve(std::size_t object, CurveOf what) const override;
  [[nodiscard]] std::size_t ObjectCount() const override { return document_.MarkerCount(); }

 private:
  orvane::TRCDocument document_;
};

}  // namespace web
