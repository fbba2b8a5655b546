#pragma once

#include "platform/export.h"
#include "sdk/core/cstr.h"

// Splits a file name into its folder (without the last separator), the name proper and the
// extension (with its dot). A part that the caller does not want is null.
SKELDER_API void SplitFilename(const char* name, CStr* path, CStr* file, CStr* extension);
