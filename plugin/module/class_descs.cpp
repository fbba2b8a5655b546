#include "plugin/module/class_descs.h"

#include <new>
#include <utility>

#include "platform/module.h"
#include "plugin/export_htr/export_htr.h"
#include "plugin/import_htr/import_htr.h"
#include "plugin/import_trc/import_trc.h"
#include "plugin/resources/resource.h"
#include "plugin/utilities/orvane_utilities.h"

namespace orvane {
namespace {

// Scenes and scripts refer to classes by these numbers.
constexpr ClassIdentity kImportHTR{
    IDS_IMPORT_HTR, kSceneImportSuperClass, {0x52871D2D, 0x79755925}};
constexpr ClassIdentity kExportHTR{
    IDS_EXPORT_HTR, kSceneExportSuperClass, {0x79A30F94, 0x5AD43C07}};
constexpr ClassIdentity kImportTRC{
    IDS_IMPORT_TRC, kSceneImportSuperClass, {0x36712537, 0x27265B43}};
constexpr ClassIdentity kUtilities{IDS_UTILITIES, kUtilitySuperClass, {0x34CC2142, 0x1E45027A}};

// A new `Class` as the plug-in base class that the host knows it by; null when there is no memory.
template <typename Base, typename Class, typename... Arguments>
void* CreateAs(Arguments&&... arguments) noexcept {
  try {
    return static_cast<Base*>(new (std::nothrow) Class(std::forward<Arguments>(arguments)...));
  } catch (...) {
    return nullptr;
  }
}

}  // namespace

const char* OrvaneClassDesc::ClassName() {
  return strings_.GetString(platform::ModuleHandle(), identity_.name_id);
}

const char* OrvaneClassDesc::Category() {
  return strings_.GetString(platform::ModuleHandle(), IDS_CATEGORY);
}

HINSTANCE OrvaneClassDesc::HInstance() { return platform::ModuleHandle(); }

const char* FileClassDesc::GetRsrcString(std::intptr_t id) {
  return reinterpret_cast<const char*>(id);
}

ImportHTRClassDesc::ImportHTRClassDesc(StringTable& strings, MessageSink& messages,
                                       ImportHTROptions& options)
    : FileClassDesc(strings, kImportHTR), messages_(messages), options_(options) {}

void* ImportHTRClassDesc::Create(bool /*loading*/) {
  return CreateAs<SceneImport, ImportHTR>(options_, messages_, platform::ModuleHandle());
}

ExportHTRClassDesc::ExportHTRClassDesc(StringTable& strings, MessageSink& messages,
                                       ExportHTROptions& options)
    : FileClassDesc(strings, kExportHTR), messages_(messages), options_(options) {}

void* ExportHTRClassDesc::Create(bool /*loading*/) {
  return CreateAs<SceneExport, ExportHTR>(options_, messages_, platform::ModuleHandle());
}

ImportTRCClassDesc::ImportTRCClassDesc(StringTable& strings, MessageSink& messages,
                                       ImportTRCOptions& options)
    : FileClassDesc(strings, kImportTRC), messages_(messages), options_(options) {}

void* ImportTRCClassDesc::Create(bool /*loading*/) {
  return CreateAs<SceneImport, ImportTRC>(options_, messages_, platform::ModuleHandle());
}

OrvaneUtilitiesClassDesc::OrvaneUtilitiesClassDesc(StringTable& strings, MessageSink& messages,
                                                   PickControlNode& pick)
    : OrvaneClassDesc(strings, kUtilities), strings_(strings), messages_(messages), pick_(pick) {}

void* OrvaneUtilitiesClassDesc::Create(bool /*loading*/) {
  return CreateAs<UtilityObj, OrvaneUtilities>(messages_, strings_, pick_,
                                               platform::ModuleHandle());
}

}  // namespace orvane
