#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/application/module_entry.h"
#include "host/application/module_leftovers.h"
#include "platform/export.h"
#include "platform/shared_library.h"
#include "sdk/core/library.h"
#include "sdk/core/plugin.h"

// Plug-in modules: loading them, getting at what they offer, and letting them work on the
// application's scene. A module is known by its four entry points and by nothing else.

namespace host {

class Application;
class Settings;

// Where a module runs. All of it outlives the module.
struct ModuleHost {
  Application& application;

  // The settings in use, asked which keys the module leaves open; null: nobody asks.
  const Settings* settings = nullptr;

  // The interface that the host has: only modules made for it are loaded.
  std::uint32_t interface_number = kSkelderInterface;
};

// How an import or an export ended.
struct FileResult {
  // What the plug-in's entry returned: 1 for done or cancelled, 0 for failure.
  int returned = 0;

  // Whether it was carried out: the entry returned 1 and had resumed set-key mode as often as it
  // suspended it, which it does only when its work is done.
  bool completed = false;
};

class SKELDER_API Module {
 public:
  // Loads the module in the file `path`. Its settings must be in use, and stay so as long as the
  // module, because its option records open their registry keys meanwhile.
  // Returns null when it cannot be loaded or is refused, with a sentence naming the file and the
  // reason in `refusal`.
  [[nodiscard]] static std::unique_ptr<Module> Load(const std::string& path, const ModuleHost& host,
                                                    std::string& refusal);

  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  // Unloads the module. Use UnloadModule to learn what it left behind.
  ~Module();

  const std::string& path() const { return path_; }

  // The entry points' answers, as sdk/core/plugin.h has them. `i` is passed on as it is.
  const char* Description() const { return entry_.description(); }
  std::uint32_t Version() const { return entry_.version(); }
  int NumberOfClasses() const { return entry_.number_of_classes(); }
  ClassDesc2* ClassDescriptor(int i) const { return entry_.class_descriptor(i); }

  // A new importer or exporter of the first class that has one for `extension`, which is without
  // its dot and in either case. Null when no class has, or it gave no instance. To be destroyed
  // before the module is unloaded.
  [[nodiscard]] std::unique_ptr<SceneImport> CreateImporter(std::string_view extension) const;
  [[nodiscard]] std::unique_ptr<SceneExport> CreateExporter(std::string_view extension) const;

  // A new utility of the class named `class_name`; null when there is none, or it gave no instance.
  // To be destroyed before the module is unloaded.
  [[nodiscard]] std::unique_ptr<UtilityObj> CreateUtility(std::string_view class_name) const;

  // Imports the file `path` into the application's scene with the importer for its extension, or
  // for another `extension`, without its dot. Returns nothing when there is no such importer.
  [[nodiscard]] std::optional<FileResult> Import(const std::string& path, bool suppress_prompts);
  [[nodiscard]] std::optional<FileResult> Import(const std::string& path,
                                                 std::string_view extension, bool suppress_prompts);

  // Exports from the application's scene to the file `path` with the exporter for its extension.
  // Returns nothing when there is no such exporter.
  [[nodiscard]] std::optional<FileResult> Export(const std::string& path, bool suppress_prompts);

 private:
  friend SKELDER_API ModuleLeftovers UnloadModule(std::unique_ptr<Module> module);

  Module(std::string path, const ModuleHost& host, const Holdings& before,
         std::unique_ptr<platform::SharedLibrary> library, const ModuleEntry& entry);

  std::string path_;
  ModuleHost host_;
  Holdings before_;  // what was held before loading
  std::unique_ptr<platform::SharedLibrary> library_;
  ModuleEntry entry_;
};

// Unloads `module` and returns what it left behind. Whatever it created must be destroyed before.
// REQUIRES: `module` is not null.
SKELDER_API ModuleLeftovers UnloadModule(std::unique_ptr<Module> module);

}  // namespace host
