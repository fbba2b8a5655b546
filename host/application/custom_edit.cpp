#include "sdk/skelderutil/custom_edit.h"

#include "host/application/application.h"
#include "host/desktop/custom_edit.h"

ICustEdit* GetICustEdit(HWND window) {
  ICustEdit* const edit = host::CustomEditOf(window);
  if (edit == nullptr) return nullptr;
  if (auto* application = host::Application::Current()) application->CustomEditObtained();
  return edit;
}

void ReleaseICustEdit(ICustEdit* edit) {
  if (edit == nullptr) return;
  if (auto* application = host::Application::Current()) application->CustomEditReleased();
}
