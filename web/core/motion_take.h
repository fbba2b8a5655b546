#pragma once

#include <string>
#include <vector>

#include "formats/htr/document.h"
#include "web/core/take.h"

namespace web {

class MotionTake final : public Take {
 public:
  // Reads and checks the file. Throws a Refusal.
  explicit MotionTake(const std::string& path);

  [[nodiscard]] bool IsMotion() const override { return true; }
  [[nodiscard]] Header GetHeader() const override;
  [[nodiscard]] Contents GetContents() const override;
  [[nodiscard]] Tracks MakeTracks() const override;
  [[nodiscard]] std::vector<double> MakeCurve(std::size_t object, CurveOf what) const override;
  [[nodiscard]] std::size_t ObjectCount() const override { return document_.segments().size(); }

 private:
  orvane::HtrDocument document_;
};

}  // namespace web
