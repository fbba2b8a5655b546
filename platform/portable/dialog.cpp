#include "platform/dialog.h"

#include "platform/desktop.h"

namespace platform {
namespace {

// Hands a message on to the handler that `parameter` is the address of.
std::intptr_t RunHandler(HWND window, unsigned int message, std::uintptr_t word,
                         std::intptr_t parameter) {
  Desktop* const desktop = CurrentDesktop();
  Dialog* const dialog = desktop == nullptr ? nullptr : desktop->FindModeless(window);
  if (dialog == nullptr) return 0;
  // NOLINTNEXTLINE(performance-no-int-to-ptr): made by HandlerParameter
  auto& handler = *reinterpret_cast<DialogHandler*>(parameter);
  if (message == kInitializeDialog) handler.Initialize(*dialog);
  if (message == kDialogCommand) handler.Command(*dialog, static_cast<int>(word));
  return 1;
}

}  // namespace

int RunModalDialog(HINSTANCE module, int dialog_id, HWND parent, DialogHandler& handler) {
  Desktop* const desktop = CurrentDesktop();
  if (desktop == nullptr) return kDialogNotCreated;
  return desktop->RunDialog(module, dialog_id, parent, handler);
}

ModelessDialog CreateModelessDialog(HINSTANCE module, int dialog_id, HWND parent,
                                    DialogHandler& handler) {
  Desktop* const desktop = CurrentDesktop();
  if (desktop == nullptr) return nullptr;
  return ModelessDialog(desktop->CreateModeless(module, dialog_id, parent, handler));
}

void ShowModelessDialog(Dialog& dialog) {
  if (Desktop* const desktop = CurrentDesktop()) desktop->ShowModeless(dialog);
}

void DestroyModelessDialog(Dialog* dialog) {
  Desktop* const desktop = CurrentDesktop();
  if (desktop != nullptr && dialog != nullptr) desktop->DestroyModeless(*dialog);
}

DialogProcedure HandlerProcedure() { return RunHandler; }

std::intptr_t HandlerParameter(DialogHandler& handler) {
  return reinterpret_cast<std::intptr_t>(&handler);
}

}  // namespace platform
