#pragma once

#include "plugin/export_htr/options.h"
#include "plugin/import_htr/options.h"
#include "plugin/import_trc/options.h"
#include "plugin/module/class_desc.h"
#include "plugin/services/message_sink.h"
#include "plugin/utilities/pick_control_node.h"

// The descriptors of the four classes of the module. Each creates instances of its class on the
// host's heap and hands them what they need; everything handed to a descriptor is the module's and
// lives as long as it. Create returns null when there is no memory.
namespace orvane {

class ImportHTRClassDesc final : public FileClassDesc {
 public:
  ImportHTRClassDesc(StringTable& strings, MessageSink& messages, ImportHTROptions& options);
  void* Create(bool loading) override;

 private:
  MessageSink& messages_;
  ImportHTROptions& options_;
};

class ExportHTRClassDesc final : public FileClassDesc {
 public:
  ExportHTRClassDesc(StringTable& strings, MessageSink& messages, ExportHTROptions& options);
  void* Create(bool loading) override;

 private:
  MessageSink& messages_;
  ExportHTROptions& options_;
};

class ImportTRCClassDesc final : public FileClassDesc {
 public:
  ImportTRCClassDesc(StringTable& strings, MessageSink& messages, ImportTRCOptions& options);
  void* Create(bool loading) override;

 private:
  MessageSink& messages_;
  ImportTRCOptions& options_;
};

class OrvaneUtilitiesClassDesc final : public OrvaneClassDesc {
 public:
  OrvaneUtilitiesClassDesc(StringTable& strings, MessageSink& messages, PickControlNode& pick);
  void* Create(bool loading) override;

 private:
  StringTable& strings_;
  MessageSink& messages_;
  PickControlNode& pick_;
};

}  // namespace orvane
