#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "formats/mnm/standard_markers.h"
#include "platform/handles.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/string_table.h"
#include "plugin/utilities/convert_bvk.h"
#include "plugin/utilities/marker_selection_dialog.h"
#include "plugin/utilities/panel_command.h"
#include "plugin/utilities/pending_pick.h"
#include "plugin/utilities/pick_control_node.h"
#include "sdk/core/interface.h"

// Makes a marker name mapping with the user: for one standard marker after the other, he picks the
// object of the scene that plays its role.
namespace orvane {

// What a creator works with. All of it outlives the creator.
struct MappingCreatorServices {
  MessageSink& messages;
  StringTable& strings;
  PickControlNode& pick;
  HINSTANCE module;  // owner of the dialog and the texts
};

class MappingCreator final : public PanelCommand {
 public:
  // The entries go to the mapping of `converter`, behind those that are there.
  MappingCreator(ConvertBVK& converter, const MappingCreatorServices& services)
      : converter_(converter), services_(services) {}
  MappingCreator(const MappingCreator&) = delete;
  MappingCreator& operator=(const MappingCreator&) = delete;

  // Asks for all markers and saves the mapping to a file that the user chooses, which becomes the
  // converter's. Returns true when that was done, with the mapping empty and the picked objects in
  // their own colour again. Returns false when the user aborted, the host exits or does not let
  // anything be picked, or End was called; mapping and colours are the same then. Returns false
  // too when the dialog cannot be created, the user chooses no file or it cannot be written; the
  // mapping and the colours then stay as they are. Running out of memory is told, and undoes all as
  // aborting does. `interface` may be null: then nothing is done.
  [[nodiscard]] bool CreateMNM(Interface* interface);

  // Leaves the pick mode, restores the colours, empties the mapping and closes the dialog.
  void End() noexcept override;

 private:
  // How the picks of one step ended.
  struct StepAnswer {
    std::size_t backs = 0;  // how often the user wanted to go back
    bool again = false;     // whether he wants to be asked again
  };

  [[nodiscard]] bool Create();
  WristSticks AskForSticks();
  [[nodiscard]] bool OpenDialog();
  [[nodiscard]] bool PickMarkers(const WristSticks& sticks);
  [[nodiscard]] std::optional<StepAnswer> PickStep(const MarkerStep& step, bool may_go_back);
  [[nodiscard]] bool PickMarker(const StandardMarker& marker);
  [[nodiscard]] bool WaitForPick();
  void AddPicked(const StandardMarker& marker, INode& node);
  void GoBack();
  [[nodiscard]] bool Save();
  [[nodiscard]] std::optional<std::string> ChooseFile();
  void RestoreLast();
  void RestoreAll() noexcept;
  void Redraw();

  ConvertBVK& converter_;
  MappingCreatorServices services_;
  Interface* interface_ = nullptr;  // null once the creation has let go of it
  MarkerSelectionDialog dialog_;
  std::optional<PendingPick> pending_;
  bool ended_ = false;
};

}  // namespace orvane
