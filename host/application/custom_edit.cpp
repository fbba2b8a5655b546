#include "sdk/skelderutil/custom_edit.h"

#include "host/application/application.h"
#include "host/desktop/custom_edit.h"

ICustEdit* GetICustEdit(HWND window) {
  if (window == nullptr || window->custom_edit == nullptr) return nullptr;
  if (auto* application = host::Application::Current()) application->CustomEditObtained();
  return window->custom_edit;
}

void ReleaseICustEdit(ICustEdit* edit) {
  if (edit == nullptr) return;
  if (auto* application = host::Application::Current()) application->CustomEditReleased();
}
