#pragma once

#include <memory>

#include "formats/mnm/marker_name_map.h"
#include "platform/dialog.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/string_table.h"
#include "plugin/utilities/pick_control_node.h"
#include "sdk/core/interface.h"
#include "sdk/core/plugin.h"

// The motion-capture panel in the host's utility tab: shows the settings of the converter and
// starts conversions and the mapping creator.
namespace orvane {

class OrvaneUtilities final : public UtilityObj, private platform::DialogHandler {
 public:
  // `messages`, `strings` and `pick` are the module's and outlive this object; `module` owns the
  // panel and the texts. The settings of the last time are taken over.
  OrvaneUtilities(MessageSink& messages, StringTable& strings, PickControlNode& pick,
                  HINSTANCE module);
  OrvaneUtilities(const OrvaneUtilities&) = delete;
  OrvaneUtilities& operator=(const OrvaneUtilities&) = delete;

  // Closes the panel if it is open, and saves the settings. May happen while a command of the panel
  // is at work, as EndEditParams may: the command ends then and does not touch this object.
  ~OrvaneUtilities() override;

  // Shows the panel, unless it is shown already or `interface` is null. A host that throws
  // meanwhile has not opened it. The panel may be closed and this object deleted meanwhile: then
  // the page that the host has added goes again.
  void BeginEditParams(Interface* interface, IUtil* utility) override;

  // Ends the command that is at work, saves the settings and closes the panel.
  void EndEditParams(Interface* interface, IUtil* utility) override;

  // What conversions rename markers by, and what the mapping creator makes.
  [[nodiscard]] const MarkerNameMap& Mapping() const;

 private:
  struct Work;
  class OpenPanel;
  class WorkInProgress;

  void Initialize(platform::Dialog& dialog) override;
  void Command(platform::Dialog& dialog, int control) override;

  static void FillOffset(platform::Dialog& dialog, const Work& work);
  static void ReadOffset(platform::Dialog& dialog, Work& work);
  void Answer(platform::Dialog& dialog, int control);
  void ShowBatch(platform::Dialog& dialog);
  void BrowseMapping(platform::Dialog& dialog);
  void BrowseOutput(platform::Dialog& dialog);
  void CreateMapping(platform::Dialog& dialog);
  void Convert(platform::Dialog& dialog);
  void Close() noexcept;

  PickControlNode& pick_;
  std::shared_ptr<Work> work_;

  // While the panel is open.
  Interface* interface_ = nullptr;
  IUtil* utility_ = nullptr;
  HWND page_ = nullptr;
};

}  // namespace orvane
