#pragma once

#include "plugin/services/string_table.h"
#include "sdk/core/plugin.h"

// What the descriptors of the module's classes have in common.
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

}  // namespace orvane
