#pragma once

#include <cstddef>

#include "platform/dialog.h"
#include "platform/export.h"
#include "platform/file_dialog.h"
#include "platform/handles.h"
#include "platform/message_box.h"
#include "platform/registry.h"

// What a program without Windows gives the plug-in in place of the system: somebody who reads
// message boxes, answers dialogs and chooses files, and a registry. The portable bodies of the
// platform forward to those in use. Tests and the command line provide a scripted desktop.
//
// Only plain data and interface pointers cross here, because the plug-in and the program are
// different modules.

namespace platform {

// A registry as the portable bodies use it; the operations mean what their namesakes in
// platform/registry.h say.
class Registry {
 public:
  [[nodiscard]] virtual RegistryKey* CreateKey(RegistryKey* parent, const char* path) = 0;
  virtual void CloseKey(RegistryKey* key) = 0;
  [[nodiscard]] virtual bool QueryValue(RegistryKey* key, const char* name, void* data,
                                        std::size_t& size) = 0;
  [[nodiscard]] virtual bool SetValue(RegistryKey* key, const char* name, RegistryType type,
                                      const void* data, std::size_t size) = 0;

 protected:
  ~Registry() = default;
};

class Desktop {
 public:
  // Shows a message box and returns the button that closed it (MessageBoxResult).
  virtual int ShowMessage(const char* text, const char* caption, MessageBoxStyle style) = 0;

  // Builds dialog `dialog_id` from the resources of `module`, lets `handler` run it and returns its
  // result, or kDialogNotCreated.
  virtual int RunDialog(HINSTANCE module, int dialog_id, HWND parent, DialogHandler& handler) = 0;

  // As CreateModelessDialog, ShowModelessDialog and DestroyModelessDialog.
  [[nodiscard]] virtual Dialog* CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                               DialogHandler& handler) = 0;
  virtual void ShowModeless(Dialog& dialog) = 0;
  virtual void DestroyModeless(Dialog& dialog) = 0;

  // The modeless dialog whose window `window` is, or null.
  [[nodiscard]] virtual Dialog* FindModeless(HWND window) = 0;

  // Lets the user do what he has been waiting to do. `awaited` tells that the application waits for
  // him. Returns false when nobody is there any more who could do anything: the application ends
  // then.
  [[nodiscard]] virtual bool ProcessPendingMessages(bool awaited) = 0;

  // As their namesakes in platform/file_dialog.h.
  [[nodiscard]] virtual bool ChooseFiles(const FileDialog& dialog, char* buffer, std::size_t size,
                                         std::size_t& name_offset) = 0;
  [[nodiscard]] virtual bool ChooseFolder(HWND owner, const char* title, char* buffer,
                                          std::size_t size) = 0;

 protected:
  ~Desktop() = default;
};

// What a dialog procedure is called with off Windows: `message` is one of these, `word` the control
// of a command, `parameter` always the one that came with the procedure.
inline constexpr unsigned int kInitializeDialog = 0x0110;
inline constexpr unsigned int kDialogCommand = 0x0111;

// Puts `desktop` or `registry` in use for the whole process; null takes the one in use away. The
// caller keeps owning it. Have a registry in use before a module is loaded, because option records
// open their keys during loading, and keep it until the module is unloaded. Provided by the host
// library, the one place of this state.
SKELDER_API void InstallDesktop(Desktop* desktop);
SKELDER_API void InstallRegistry(Registry* registry);

// What is in use, or null. The portable bodies then report failure: no key opens, no dialog is
// created, nothing is chosen, a message box answers kMessageBoxFailed.
SKELDER_API Desktop* CurrentDesktop();
SKELDER_API Registry* CurrentRegistry();

}  // namespace platform
