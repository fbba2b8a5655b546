#include "tests/host/desktop/fixture_module.h"

#include "platform/portable/module_resources.h"
#include "tests/support/resource_builder.h"

namespace host {

HINSTANCE FixtureModule() {
  static const test::ResourceBytes resources = test::FileBytes(
      {test::EntryBytes(
           test::kDialogType, kDialog,
           test::DialogBytes(u"Options",
                             {
                                 {kCheck, test::kButton, 3, u"Check"},
                                 {kFirstRadio, test::kButton, 4, u"One"},
                                 {kSecondRadio, test::kButton, 4, u"Two"},
                                 {kEdit, test::kEdit, 0, u"text"},
                                 {kReadOnlyEdit, test::kEdit, 0x800, u""},
                                 {kDisabledCheck, test::kButton, 0x08000003, u"Disabled"},
                                 {kDisabledEdit, test::kEdit, 0x08000000, u""},
                                 {kLabel, test::kStatic, 0, u"Label"},
                                 {kGroup, test::kButton, 7, u"Group"},
                                 {kCustomEdit, 0, 0, u"", u"SKELDEREDIT"},
                                 {kOk, test::kButton, 1, u"&OK"},
                                 {kCancel, test::kButton, 0, u"&Cancel"},
                             })),
       test::EntryBytes(test::kDialogType, kPage,
                        test::DialogBytes(u"Page", {{kCheck, test::kButton, 3, u"Check"}},
                                          test::kChildDialog))});
  static HINSTANCE__ module{resources};
  return &module;
}

}  // namespace host
