// A plug-in module for the tests of the program: its importer and its exporter do what the file's
// name asks for, at the very moment that the test needs. They read and write no file.

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/export.h"
#include "sdk/core/animation.h"
#include "sdk/core/interface.h"
#include "sdk/core/library.h"
#include "sdk/core/plugin.h"
#include "tests/cli/interruption.h"

#define MODULE_ENTRY extern "C" SKELDER_ENTRY

namespace {

std::uint32_t GoOn(void* /*argument*/) { return 0; }

void Wait() { std::this_thread::sleep_for(std::chrono::milliseconds(120)); }

// What importer and exporter do alike.
int Hurry(const char* name, Interface* host) {
  const std::string wish = std::filesystem::path(name).stem().string();
  SuspendSetKeyMode();
  host->ProgressStart("Hurried", true, GoOn, nullptr);
  if (wish.find("interrupt") == 0) test::AskToStop();
  if (wish == "terminate") test::AskToTerminate();
  if (wish == "interrupt-twice") test::AskToStop();
  if (wish == "slow") Wait();
  host->ProgressUpdate(50);
  const bool cancelled = host->GetCancel();
  if (wish == "slow") Wait();
  host->ProgressUpdate(100);
  host->ProgressEnd();
  if (wish == "silent" || (cancelled && wish != "interrupt-unheard")) return 0;
  ResumeSetKeyMode();
  return 1;
}

class Importer final : public SceneImport {
 public:
  int ExtCount() override { return 2; }
  const char* Ext(int n) override { return n == 0 ? "HTR" : "TRC"; }
  const char* LongDesc() override { return ""; }
  const char* ShortDesc() override { return ""; }
  const char* AuthorName() override { return ""; }
  const char* CopyrightMessage() override { return ""; }
  const char* OtherMessage1() override { return ""; }
  const char* OtherMessage2() override { return ""; }
  unsigned Version() override { return 100; }
  void ShowAbout(HWND /*owner*/) override {}

  int DoImport(const char* name, ImpInterface* /*import_interface*/, Interface* host,
               int /*suppress_prompts*/) override {
    return Hurry(name, host);
  }
};

class Exporter final : public SceneExport {
 public:
  int ExtCount() override { return 1; }
  const char* Ext(int /*n*/) override { return "HTR"; }
  const char* LongDesc() override { return ""; }
  const char* ShortDesc() override { return ""; }
  const char* AuthorName() override { return ""; }
  const char* CopyrightMessage() override { return ""; }
  const char* OtherMessage1() override { return ""; }
  const char* OtherMessage2() override { return ""; }
  unsigned Version() override { return 100; }
  void ShowAbout(HWND /*owner*/) override {}

  int DoExport(const char* name, ExpInterface* /*export_interface*/, Interface* host,
               int /*suppress_prompts*/, std::uint32_t /*options*/) override {
    return Hurry(name, host);
  }
};

// The descriptor of `Class`, which the host knows as a `Base`.
template <typename Base, typename Class, SuperClassId kSuperClass>
class Descriptor final : public ClassDesc2 {
 public:
  int IsPublic() override { return 1; }
  void* Create(bool /*loading*/) override { return static_cast<Base*>(new (std::nothrow) Class()); }
  const char* ClassName() override { return "Hurried"; }
  SuperClassId SuperClassID() override { return kSuperClass; }
  ClassId ClassID() override { return {0xF2, 0}; }
  const char* Category() override { return "Tests"; }
};

Descriptor<SceneImport, Importer, kSceneImportSuperClass> import_class;
Descriptor<SceneExport, Exporter, kSceneExportSuperClass> export_class;

}  // namespace

MODULE_ENTRY const char* LibDescription() { return "Hurried module"; }
MODULE_ENTRY int LibNumberClasses() { return 2; }
MODULE_ENTRY ClassDesc2* LibClassDesc(int i) {
  if (i == 0) return &import_class;
  return i == 1 ? &export_class : nullptr;
}
MODULE_ENTRY std::uint32_t LibVersion() { return kSkelderVersion; }
