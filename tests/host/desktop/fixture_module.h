#pragma once

#include "platform/handles.h"

namespace host {

// The controls of the dialog in the fixture module.
enum Control : int {
  kOk = 1097,
  kCancel = 1098,
  kCheck = 10,
  kFirstRadio = 11,
  kSecondRadio = 12,
  kEdit = 13,
  kReadOnlyEdit = 14,
  kDisabledCheck = 15,
  kDisabledEdit = 16,
  kLabel = 17,
  kGroup = 18,
  kCustomEdit = 19,
  kAbsent = 99
};

inline constexpr int kDialog = 107;
inline constexpr int kPage = 116;  // a part of another window, with the check box alone

// A module that has one dialog with a control of each kind, and one page.
HINSTANCE FixtureModule();

}  // namespace host
