#include "plugin/module/class_desc.h"

#include "platform/module.h"
#include "plugin/resources/resource.h"

namespace orvane {

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

}  // namespace orvane
