// The module: all its state, and the entry points that the host calls. No other file has statics.

#include "platform/module.h"

#include <array>
#include <cstdint>

#include "platform/export.h"
#include "plugin/export_htr/options.h"
#include "plugin/import_htr/options.h"
#include "plugin/import_trc/options.h"
#include "plugin/module/class_descs.h"
#include "plugin/resources/resource.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/string_table.h"
#include "plugin/utilities/pick_control_node.h"

namespace {

extern orvane::ImportHTROptions import_htr_options;
extern orvane::ImportTRCOptions import_trc_options;
extern orvane::ExportHTROptions export_htr_options;

// Constructed in this order at load and destroyed in reverse at unload: first what everybody uses,
// then class by class the descriptor and its option record. None of it needs a host.
orvane::MessageSink message_sink;
orvane::StringTable strings;
orvane::StringTable library_description;

orvane::ImportHTRClassDesc import_htr_class(strings, message_sink, import_htr_options);
orvane::ImportHTROptions import_htr_options;

orvane::ExportHTRClassDesc export_htr_class(strings, message_sink, export_htr_options);
orvane::ExportHTROptions export_htr_options;

orvane::ImportTRCClassDesc import_trc_class(strings, message_sink, import_trc_options);
orvane::ImportTRCOptions import_trc_options;

orvane::PickControlNode pick_control_node;
orvane::OrvaneUtilitiesClassDesc utilities_class(strings, message_sink, pick_control_node);

const std::array<ClassDesc2*, 4> kClasses = {&import_htr_class, &export_htr_class,
                                             &import_trc_class, &utilities_class};

}  // namespace

extern "C" {

// The module in one line, null when its resources cannot be read; valid until the module is
// unloaded.
SKELDER_ENTRY const char* LibDescription() {
  return library_description.GetString(platform::ModuleHandle(), IDS_LIBRARY_DESCRIPTION);
}

SKELDER_ENTRY int LibNumberClasses() { return static_cast<int>(kClasses.size()); }

// The descriptor of class `index`, null when there is none of that number. It is the module's.
SKELDER_ENTRY ClassDesc2* LibClassDesc(int index) {
  if (index < 0 || index >= LibNumberClasses()) return nullptr;
  return kClasses[static_cast<std::size_t>(index)];
}

// The host that this module is made for: release 9000, interface 21, revision 0 of its SDK. Another
// SDK does not change it.
SKELDER_ENTRY std::uint32_t LibVersion() { return 0x23281500; }

}  // extern "C"
