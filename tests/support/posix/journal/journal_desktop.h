#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "tests/support/forwarding_desktop.h"
#include "tests/support/posix/journal/journal_dialog.h"

namespace test {

// The desktop that was in use before, as a plug-in sees it while a journal is kept. In use until it
// is destroyed.
class JournalDesktop final : public ForwardingDesktop {
 public:
  // `journal` outlives this object.
  explicit JournalDesktop(Journal& journal);
  ~JournalDesktop();

  int ShowMessage(const char* text, const char* caption, platform::MessageBoxStyle style) override;
  int RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                platform::DialogHandler& handler) override;
  platform::Dialog* CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                   platform::DialogHandler& handler) override;
  void ShowModeless(platform::Dialog& dialog) override;
  void DestroyModeless(platform::Dialog& dialog) override;
  platform::Dialog* FindModeless(HWND window) override;
  bool ChooseFiles(const platform::FileDialog& dialog, char* buffer, std::size_t size,
                   std::size_t& name_offset) override;
  bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) override;

 private:
  class Handler;

  // What the handler gets for a dialog that has just been made, number `id`.
  platform::Dialog& Keep(platform::Dialog& own, int id);

  // The same of one that is kept already; null for null.
  platform::Dialog* Kept(platform::Dialog* own);

  Handler& HandlerOf(platform::DialogHandler& own, int id);

  Journal& journal_;
  std::unordered_map<platform::Dialog*, JournalDialog*> dialogs_;

  // All so far, since a dialog may be destroyed by its own handler.
  std::vector<std::unique_ptr<Handler>> handlers_;
  std::vector<std::unique_ptr<JournalDialog>> all_dialogs_;
};

}  // namespace test
