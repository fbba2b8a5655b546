// A plug-in module for the tests of the loader. Its importer does what the file's name asks for; it
// reads no file. FIXTURE_INTERFACE is the interface number it claims; FIXTURE_OMIT_... leaves an
// entry point out.

#include <cstring>
#include <string>

#include "platform/export.h"
#include "platform/registry.h"
#include "sdk/core/animation.h"
#include "sdk/core/interface.h"
#include "sdk/core/library.h"
#include "sdk/core/plugin.h"
#include "tests/host/application/idle_callbacks.h"

#define FIXTURE_ENTRY extern "C" SKELDER_ENTRY

namespace {

platform::RegistryKey* OpenKey(const char* path) {
  return platform::CreateRegistryKey(nullptr, path);
}

// As an option record does: its key is open as long as the module is loaded.
class OptionRecord {
 public:
  OptionRecord() : key_(OpenKey("Fixture\\Options")) {}
  OptionRecord(const OptionRecord&) = delete;
  OptionRecord& operator=(const OptionRecord&) = delete;
  ~OptionRecord() { platform::CloseRegistryKey(key_); }

 private:
  platform::RegistryKey* key_;
};

OptionRecord option_record;

class PickMode final : public IdlePickMode {};

IdleExit exit_callback;
PickMode pick_mode;

std::uint32_t GoOn(void* /*argument*/) { return 0; }

// An allocation that only the test frees: it finds its address in the registry.
void ForgetAllocation() {
  void* memory = SkelderAllocate(1);
  platform::RegistryKey* key = OpenKey("Fixture\\Options");
  static_cast<void>(platform::SetRegistryValue(key, "Forgotten", platform::RegistryType::kBinary,
                                               &memory, sizeof memory));
  platform::CloseRegistryKey(key);
}

// The one thing that `name` asks to leave behind.
void LeaveBehind(const std::string& name, Interface* host) {
  if (name == "key.fix") OpenKey("Fixture\\Forgotten");
  if (name == "allocation.fix") ForgetAllocation();
  if (name == "instance.fix") host->CreateInstance(kHelperSuperClass, kDummyClass);
  if (name == "exit.fix") host->RegisterExitSkelderCallback(&exit_callback);
  if (name == "pick.fix") host->SetPickMode(&pick_mode);
  if (name == "progress.fix") host->ProgressStart("Fixture", true, GoOn, nullptr);
}

class Importer final : public SceneImport {
 public:
  int ExtCount() override { return 2; }
  const char* Ext(int n) override { return n == 0 ? nullptr : "FIX"; }
  const char* LongDesc() override { return ""; }
  const char* ShortDesc() override { return ""; }
  const char* AuthorName() override { return ""; }
  const char* CopyrightMessage() override { return ""; }
  const char* OtherMessage1() override { return ""; }
  const char* OtherMessage2() override { return ""; }
  unsigned Version() override { return 100; }
  void ShowAbout(HWND /*owner*/) override {}

  int DoImport(const char* name, ImpInterface* import_interface, Interface* host,
               int suppress_prompts) override {
    if (import_interface == nullptr) return -1;
    SuspendSetKeyMode();
    if (std::strcmp(name, "refused.fix") == 0) return 0;
    if (std::strcmp(name, "cancelled.fix") == 0) return 1;
    LeaveBehind(name, host);
    Object* box = static_cast<Object*>(host->CreateInstance(kHelperSuperClass, kDummyClass));
    host->CreateObjectNode(box)->SetName(suppress_prompts == 1 ? "quiet" : "asked");
    ResumeSetKeyMode();
    return 1;
  }
};

class Exporter final : public SceneExport {
 public:
  int ExtCount() override { return 1; }
  const char* Ext(int /*n*/) override { return "FIX"; }
  const char* LongDesc() override { return ""; }
  const char* ShortDesc() override { return "Fixture exporter"; }
  const char* AuthorName() override { return ""; }
  const char* CopyrightMessage() override { return ""; }
  const char* OtherMessage1() override { return ""; }
  const char* OtherMessage2() override { return ""; }
  unsigned Version() override { return 100; }
  void ShowAbout(HWND /*owner*/) override {}
  int DoExport(const char* name, ExpInterface* export_interface, Interface* host,
               int suppress_prompts, std::uint32_t options) override {
    if (export_interface == nullptr || host == nullptr || options != 0) return -1;
    SuspendSetKeyMode();
    if (std::strcmp(name, "refused.fix") == 0) return 0;
    if (std::strcmp(name, "cancelled.fix") == 0) return 1;
    if (std::strcmp(name, "asked.fix") == 0 && suppress_prompts != 0) return 0;
    ResumeSetKeyMode();
    return 1;
  }
};

// `Plugin` as an instance of its base class `Base`.
template <typename Base, typename Plugin, SuperClassId super_class>
class Descriptor final : public ClassDesc2 {
 public:
  int IsPublic() override { return 1; }
  void* Create(bool /*loading*/) override {
    return static_cast<Base*>(new (std::nothrow) Plugin());
  }
  const char* ClassName() override { return "Fixture"; }
  SuperClassId SuperClassID() override { return super_class; }
  ClassId ClassID() override { return {0xF1, super_class}; }
  const char* Category() override { return "Tests"; }
};

// Unused where FIXTURE_OMIT_LibClassDesc is defined.
[[maybe_unused]] Descriptor<SceneImport, Importer, kSceneImportSuperClass> import_descriptor;
[[maybe_unused]] Descriptor<SceneExport, Exporter, kSceneExportSuperClass> export_descriptor;

}  // namespace

#ifndef FIXTURE_OMIT_LibDescription
FIXTURE_ENTRY const char* LibDescription() { return "Fixture module"; }
#endif

#ifndef FIXTURE_OMIT_LibNumberClasses
FIXTURE_ENTRY int LibNumberClasses() { return 3; }
#endif

#ifndef FIXTURE_OMIT_LibClassDesc
FIXTURE_ENTRY ClassDesc2* LibClassDesc(int i) {
  if (i == 1) return &export_descriptor;
  if (i == 2) return &import_descriptor;
  return nullptr;
}
#endif

#ifndef FIXTURE_OMIT_LibVersion
FIXTURE_ENTRY std::uint32_t LibVersion() { return 9000U << 16U | FIXTURE_INTERFACE << 8U; }
#endif
