#pragma once

#include <cassert>

#include "plugin/exchange/attempt.h"
#include "plugin/exchange/failure_report.h"
#include "plugin/exchange/host_session.h"
#include "plugin/resources/resource.h"
#include "plugin/services/about_dialog.h"
#include "plugin/services/message_sink.h"
#include "sdk/core/cstr.h"
#include "sdk/core/interface.h"

// What the importers and the exporter have in common: what they tell the host about themselves, and
// the frame around their work.
namespace orvane {

// Texts that stay.
struct FileClassTexts {
  const char* extension;
  const char* long_description;
  const char* short_description;
  const char* progress_title;
  FailureTexts failure;
};

// `Role` is what the host knows the class as: SceneImport or SceneExport.
template <typename Role>
class FileClass : public Role {
 public:
  int ExtCount() final { return 1; }
  const char* Ext(int /*n*/) final { return texts_.extension; }
  const char* LongDesc() final { return texts_.long_description; }
  const char* ShortDesc() final { return texts_.short_description; }
  const char* AuthorName() final { return "Orvane Corporation"; }
  const char* CopyrightMessage() final { return ORVANE_COPYRIGHT; }
  const char* OtherMessage1() final { return ""; }
  const char* OtherMessage2() final { return ""; }
  unsigned Version() final { return 300; }
  void ShowAbout(HWND owner) final { ShowAboutDialog(module_, owner); }

 protected:
  enum class Outcome { kDone, kCanceled, kFailed };

  // `messages` is the module's and outlives this object. `module` owns the dialogs.
  FileClass(const FileClassTexts& texts, MessageSink& messages, HINSTANCE module)
      : texts_(texts), messages_(messages), module_(module) {}

  // Works on the file `name` in the host `interface`, whose modes are suspended meanwhile, with a
  // progress bar; `quiet` shows no options dialog. What is thrown is reported, and a failure.
  // Intended: a failure keeps the document, and only work that is done resumes the host's modes.
  [[nodiscard]] Outcome Run(const char* name, Interface& interface, bool quiet) noexcept {
    Outcome outcome = Outcome::kFailed;
    const char* const failure = FailureOf(
        [&] {
          file_name_ = name;
          interface_ = &interface;
          quiet_ = quiet;
          outcome = WorkInHost();
        },
        texts_.failure);
    if (failure == nullptr) return outcome;
    Attempt([this] { ForgetDocument(); });
    messages_.Report(failure, texts_.failure.title);
    return Outcome::kFailed;
  }

  // Of the run that is at work.
  // REQUIRES: there is one.
  const char* FileName() const { return file_name_.data(); }
  Interface& Host() const {
    assert(interface_ != nullptr);
    return *interface_;
  }

  MessageSink& Messages() const { return messages_; }

  // Shows `message` under the class's own error title, and returns false.
  bool Refuse(const char* message) const {
    messages_.Report(message, texts_.failure.title);
    return false;
  }

  // Lets the user change `options` in a `Dialog`, unless the run is quiet. Returns false when he
  // cancels.
  template <typename Dialog, typename Options>
  [[nodiscard]] bool ConfirmIn(Options& options) const {
    if (quiet_) return true;
    return Dialog(options, messages_, interface_->GetSkelderHWnd(), module_).Show();
  }

 private:
  // All there is to do. Has told the user why it has failed.
  [[nodiscard]] virtual Outcome Work() = 0;

  virtual void ForgetDocument() = 0;

  [[nodiscard]] Outcome WorkInHost() {
    SuspendHostModes(*interface_);
    Outcome outcome = Outcome::kFailed;
    {
      const OpenProgressBar progress(*interface_, texts_.progress_title);
      outcome = Work();
    }
    if (outcome == Outcome::kFailed) return outcome;
    ForgetDocument();
    if (outcome == Outcome::kDone) ResumeHostModes();
    return outcome;
  }

  const FileClassTexts& texts_;
  MessageSink& messages_;
  HINSTANCE module_;

  // Of the run that is at work.
  CStr file_name_;
  Interface* interface_ = nullptr;
  bool quiet_ = false;
};

}  // namespace orvane
