#pragma once

#include "plugin/export_htr/options.h"
#include "plugin/import_htr/options.h"
#include "plugin/import_trc/options.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/string_table.h"
#include "plugin/utilities/pick_control_node.h"
#include "sdk/core/plugin.h"

// The descriptors of the four classes of the module. Each creates instances of its class on the
// host's heap and hands them what they need; everything handed to a descriptor is the module's and
// lives as long as it. Create returns null when there is no memory.
namespace orvane {

// How the host tells one class from the others.
struct ClassIdentity {
  unsigned int name_id;  // of the string that is its name
  SuperClassId super_class;
  ClassId class_id;
};

// Answers all but Create. Texts come from `strings`, the one table of the module, and stay until
// its next use; the table outlives this object.
class OrvaneClassDesc : public ClassDesc2 {
 public:
  OrvaneClassDesc(StringTable& strings, const ClassIdentity& identity)
      : strings_(strings), identity_(identity) {}

  int IsPublic() override { return 1; }
  const char* ClassName() override;
  SuperClassId SuperClassID() override { return identity_.super_class; }
  ClassId ClassID() override { return identity_.class_id; }
  const char* Category() override;
  const char* InternalName() override { return ClassName(); }
  HINSTANCE HInstance() override;
  int OkToCreate() override { return 1; }
  unsigned InitialRollupPageState() override { return 0x7FFFFFFF; }

 private:
  StringTable& strings_;
  ClassIdentity identity_;
};

// A class that imports or exports files.
class FileClassDesc : public OrvaneClassDesc {
 public:
  using OrvaneClassDesc::OrvaneClassDesc;

  // Intended: `id` itself is the text, because these classes name their settings with literal text
  // and not by number.
  const char* GetRsrcString(std::intptr_t id) override;
};

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
