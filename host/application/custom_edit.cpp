#include "sdk/skelderutil/custom_edit.h"

// No window of the stand-in has custom edit controls yet.
ICustEdit* GetICustEdit(HWND /*window*/) { return nullptr; }

void ReleaseICustEdit(ICustEdit* /*edit*/) {}
