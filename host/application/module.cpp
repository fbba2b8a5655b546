#include "host/application/module.h"

#include <cassert>
#include <utility>

#include "host/application/application.h"
#include "host/application/extension_match.h"
#include "platform/path_text.h"

// They offer nothing so far; plug-ins keep the pointers only.
class ImpInterface {};
class ExpInterface {};

namespace host {
namespace {

// The extension of the file name in `path`, without its dot.
std::string ExtensionOf(const std::string& path) {
  const std::string extension = platform::TextOf(platform::PathOf(path).extension());
  return extension.empty() ? extension : extension.substr(1);
}

// Calls the entry of an importer or exporter and tells how it ended.
template <typename Entry>
FileResult Watch(Application& application, const Entry& entry) {
  const SuspendableMode& set_key_mode = application.scene().Animation().SetKeyMode();
  const std::size_t depth_before = set_key_mode.SuspendDepth();
  FileResult result;
  result.returned = entry();
  result.completed = result.returned == 1 && set_key_mode.SuspendDepth() == depth_before;
  return result;
}

}  // namespace

std::unique_ptr<Module> Module::Load(const std::string& path, const ModuleHost& host,
                                     std::string& refusal) {
  const Holdings before(host.application, host.settings);
  std::string failure;
  std::unique_ptr<platform::SharedLibrary> library = platform::SharedLibrary::Open(path, failure);
  if (library == nullptr) {
    refusal = path + " cannot be loaded: " + failure;
    return nullptr;
  }
  const auto entry = FindModuleEntry(*library, path, host.interface_number, refusal);
  if (!entry) return nullptr;
  return std::unique_ptr<Module>(new Module(path, host, before, std::move(library), *entry));
}

Module::Module(std::string path, const ModuleHost& host, const Holdings& before,
               std::unique_ptr<platform::SharedLibrary> library, const ModuleEntry& entry)
    : path_(std::move(path)),
      host_(host),
      before_(before),
      library_(std::move(library)),
      entry_(entry) {}

Module::~Module() = default;

std::unique_ptr<SceneImport> Module::CreateImporter(std::string_view extension) const {
  return CreateByExtension<SceneImport>(entry_, kSceneImportSuperClass, extension);
}

std::unique_ptr<SceneExport> Module::CreateExporter(std::string_view extension) const {
  return CreateByExtension<SceneExport>(entry_, kSceneExportSuperClass, extension);
}

std::unique_ptr<UtilityObj> Module::CreateUtility(std::string_view class_name) const {
  for (int i = 0; i < NumberOfClasses(); ++i) {
    ClassDesc2* const descriptor = ClassDescriptor(i);
    if (descriptor == nullptr || descriptor->SuperClassID() != kUtilitySuperClass) continue;
    const char* const name = descriptor->ClassName();
    if (name == nullptr || name != class_name) continue;
    return std::unique_ptr<UtilityObj>(static_cast<UtilityObj*>(descriptor->Create(false)));
  }
  return nullptr;
}

std::optional<FileResult> Module::Import(const std::string& path, bool suppress_prompts) {
  return Import(path, ExtensionOf(path), suppress_prompts);
}

std::optional<FileResult> Module::Import(const std::string& path, std::string_view extension,
                                         bool suppress_prompts) {
  const std::unique_ptr<SceneImport> importer = CreateImporter(extension);
  if (importer == nullptr) return std::nullopt;
  ImpInterface import_interface;
  return Watch(host_.application, [&] {
    return importer->DoImport(path.c_str(), &import_interface,
                              &host_.application.plugin_interface(), suppress_prompts ? 1 : 0);
  });
}

std::optional<FileResult> Module::Export(const std::string& path, bool suppress_prompts) {
  const std::unique_ptr<SceneExport> exporter = CreateExporter(ExtensionOf(path));
  if (exporter == nullptr) return std::nullopt;
  ExpInterface export_interface;
  return Watch(host_.application, [&] {
    return exporter->DoExport(path.c_str(), &export_interface,
                              &host_.application.plugin_interface(), suppress_prompts ? 1 : 0, 0);
  });
}

ModuleLeftovers UnloadModule(std::unique_ptr<Module> module) {
  assert(module != nullptr);
  const ModuleHost host = module->host_;
  const Holdings before = module->before_;
  module.reset();
  return Holdings(host.application, host.settings).Since(before);
}

}  // namespace host
