#pragma once

#include <cstdint>
#include <optional>

#include "formats/trc/document.h"
#include "plugin/exchange/key_times.h"
#include "plugin/import_trc/options.h"
#include "plugin/import_trc/selected_nodes.h"
#include "plugin/services/message_sink.h"
#include "sdk/core/interface.h"

// Builds the scene of one import: finds or creates an object for each marker, and keys its
// positions.
namespace orvane {

class MarkerCloud {
 public:
  // All of them must outlive this object. The positions of `document` are in system units.
  MarkerCloud(Interface& interface, const ImportTRCOptions& options, const TRCDocument& document,
              MessageSink& messages);

  // Does all of it and shows its progress, from 10 to 100 per cent. Returns false when the user
  // cancelled or a marker could not be keyed: what is done stays in the scene.
  // When a position controller accepts no more values, animation stays suspended.
  [[nodiscard]] bool Build();

 private:
  [[nodiscard]] bool ImportMarker(const TRCMarker& marker);
  bool IsWithoutTarget() const;
  [[nodiscard]] INode* NodeFor(const TRCMarker& marker);
  [[nodiscard]] bool KeyMarker(const TRCMarker& marker, Control* position);
  [[nodiscard]] bool KeyFrames(const TRCMarker& marker, Control* position);
  void ShowProgress(unsigned markers_done);
  void SetAnimationRange();

  Interface& interface_;
  const ImportTRCOptions& options_;
  const TRCDocument& document_;
  MessageSink& messages_;

  std::int64_t frame_count_;
  std::optional<KeyTimes> times_;          // at the frame rate that the keys are made at
  std::optional<SelectedNodes> selected_;  // when motion is applied to what is selected
  INode* root_ = nullptr;
};

}  // namespace orvane
