#pragma once

#include <string>
#include <utility>

#include "platform/dialog.h"
#include "tests/support/posix/journal/journal.h"

namespace test {

// An open dialog, as its handler sees it while a journal is kept. In a journal it is called by the
// number of its resource.
class JournalDialog final : public platform::Dialog {
 public:
  // `own` is the desktop's. Both outlive this object, or are not used any more.
  JournalDialog(Journal& journal, platform::Dialog& own, int id);
  JournalDialog(const JournalDialog&) = delete;
  JournalDialog& operator=(const JournalDialog&) = delete;

  platform::Dialog& Own() { return own_; }
  const std::string& Name() const { return name_; }

  HWND Window() override { return own_.Window(); }
  HWND ControlWindow(int control) override;
  void SetText(int control, const char* text) override;
  std::size_t GetText(int control, char* buffer, std::size_t size) override;
  void SetChecked(int control, bool checked) override;
  bool IsChecked(int control) override;
  void SetEnabled(int control, bool enabled) override;
  void End(int result) override;

 private:
  Journal& journal_;
  platform::Dialog& own_;
  std::string name_;
};

}  // namespace test
