#pragma once

#include "cli/common/dialog_flags.h"
#include "cli/common/file_kind.h"

// How large new objects are: a length becomes the number that the dialog is to be told. The dialog
// knows no units, and multiplies the size by the scale as it does with all lengths.

namespace cli {

// A number in the dialog, in the scene that is imported into.
struct SizeUnits {
  double millimeters_per_unit = 1.0;  // of the scene
  double scale = 1.0;                 // that the dialog multiplies by
};

// The wish for objects of `millimeters` in the scene.
[[nodiscard]] ControlWish SizeOf(double millimeters, const SizeUnits& units);

// Whether `wishes` say anything of the size.
[[nodiscard]] bool MentionSize(const Wishes& wishes);

// Puts the number for the dialog in the place of a length with a unit, "25mm". Throws a Failure for
// wrong usage when there is no such unit, or when the dialog for files of that `kind` takes no
// length: the size of a segment is a part of it.
void ConvertSize(Wishes& wishes, FileKind kind, const SizeUnits& units);

}  // namespace cli
