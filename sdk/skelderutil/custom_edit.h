#pragma once

#include "platform/export.h"
#include "platform/handles.h"

// The window class of the host's own edit control, by which dialog resources name it.
inline constexpr char kCustomEditClass[] = "SkelderEdit";

// The host's own edit control.
class ICustEdit {
 public:
  // The number in the control. `valid`, when given, tells whether the text is one; 0 when it is
  // not.
  virtual float GetFloat(bool* valid = nullptr) = 0;
  virtual void SetText(const char* text) = 0;

 protected:
  ~ICustEdit() = default;
};

// The custom edit control that `window` is, or null. Each one obtained is released once.
SKELDER_API ICustEdit* GetICustEdit(HWND window);
SKELDER_API void ReleaseICustEdit(ICustEdit* edit);
