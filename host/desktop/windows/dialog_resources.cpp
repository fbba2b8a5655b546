#include "host/desktop/windows/dialog_resources.h"

#include <windows.h>

#include <cstddef>
#include <span>
#include <vector>

#include "host/desktop/windows/window_text.h"

namespace host {
namespace {

std::vector<int> ControlsOf(HWND window) {
  std::vector<int> ids;
  for (HWND control = GetWindow(window, GW_CHILD); control != nullptr;
       control = GetWindow(control, GW_HWNDNEXT)) {
    ids.push_back(static_cast<int>(GetWindowLongPtrA(control, GWLP_ID)));
  }
  return ids;
}

// The search for the dialog that a window was built from.
struct ResourceSearch {
  std::string title;
  std::vector<int> controls;
  std::optional<DialogResource> found{};

  [[nodiscard]] bool IsLike(const platform::DialogTemplate& dialog) const {
    if (dialog.title != title || dialog.controls.size() != controls.size()) return false;
    for (std::size_t i = 0; i < controls.size(); ++i) {
      // A 16-bit id stays one.
      if ((dialog.controls[i].id ^ controls[i]) & 0xFFFF) return false;
    }
    return true;
  }
};

BOOL CALLBACK Compare(HMODULE module, const char* /*type*/, char* name, LPARAM parameter) {
  if (!IS_INTRESOURCE(name)) return TRUE;
  // NOLINTNEXTLINE(performance-no-int-to-ptr): made below
  auto& search = *reinterpret_cast<ResourceSearch*>(parameter);
  const auto id = static_cast<int>(reinterpret_cast<std::uintptr_t>(name));
  auto resource = FindDialogResource(module, id);
  if (!resource || !search.IsLike(resource->dialog)) return TRUE;
  search.found = std::move(resource);
  return FALSE;
}

}  // namespace

std::optional<DialogResource> FindDialogResource(HINSTANCE module, int id) {
  const HRSRC place = FindResourceA(module, MAKEINTRESOURCEA(id), RT_DIALOG);
  if (place == nullptr) return {};
  const void* const bytes = LockResource(LoadResource(module, place));
  if (bytes == nullptr) return {};
  auto dialog = platform::ParseDialogTemplate(
      std::span(static_cast<const std::byte*>(bytes), SizeofResource(module, place)));
  if (!dialog) return {};
  return DialogResource{id, std::move(*dialog)};
}

std::optional<DialogResource> ResourceOf(HWND window) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the system's own way to keep it
  const auto module = reinterpret_cast<HMODULE>(GetWindowLongPtrA(window, GWLP_HINSTANCE));
  ResourceSearch search{TextOf(window), ControlsOf(window)};
  EnumResourceNamesA(module, RT_DIALOG, Compare, reinterpret_cast<LONG_PTR>(&search));
  return std::move(search.found);
}

}  // namespace host
