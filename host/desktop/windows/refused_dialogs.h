#pragma once

#include <set>

#include "platform/handles.h"

// Dialogs that fail because a test or a failed script says so. The user of the windows owns them.

namespace host {

// Dialogs of modules that the system does not create, as if it had run out of memory. There is one
// such object at a time that refuses any.
class RefusedDialogs {
 public:
  RefusedDialogs() = default;
  RefusedDialogs(const RefusedDialogs&) = delete;
  RefusedDialogs& operator=(const RefusedDialogs&) = delete;
  ~RefusedDialogs();

  // From now on dialog `dialog_id` of any module is refused.
  void Refuse(int dialog_id);

  // Whether a dialog of `module` with that title, a part of another window or not, is refused.
  [[nodiscard]] bool Contains(HINSTANCE module, const wchar_t* title, bool is_part) const;

 private:
  std::set<int> ids_;
  void* hook_ = nullptr;
};

}  // namespace host
