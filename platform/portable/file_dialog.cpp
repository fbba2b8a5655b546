#include "platform/file_dialog.h"

#include "platform/desktop.h"

namespace platform {

bool ChooseFiles(const FileDialog& dialog, char* buffer, std::size_t size,
                 std::size_t& name_offset) {
  Desktop* const desktop = CurrentDesktop();
  return desktop != nullptr && desktop->ChooseFiles(dialog, buffer, size, name_offset);
}

bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) {
  Desktop* const desktop = CurrentDesktop();
  return desktop != nullptr && desktop->ChooseFolder(owner, title, buffer, size);
}

char PathSeparator() { return '/'; }

}  // namespace platform
