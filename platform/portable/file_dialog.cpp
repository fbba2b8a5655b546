#include "platform/file_dialog.h"

#include <cassert>

#include "platform/desktop.h"

namespace platform {

bool ChooseFiles(const FileDialog& dialog, char* buffer, std::size_t size,
                 std::size_t& name_offset) {
  assert(buffer != nullptr && size > 0);
  Desktop* const desktop = CurrentDesktop();
  return desktop != nullptr && desktop->ChooseFiles(dialog, buffer, size, name_offset);
}

bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) {
  assert(buffer != nullptr && size > 0);
  Desktop* const desktop = CurrentDesktop();
  return desktop != nullptr && desktop->ChooseFolder(owner, title, buffer, size);
}

char PathSeparator() { return '/'; }

}  // namespace platform
