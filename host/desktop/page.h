#pragma once

#include <cstdint>
#include <memory>

#include "platform/handles.h"

// A dialog that is a part of the host's own window; each kind of desktop has its body for it. Which
// pages there are, and what they are called, is known to host/application/rollup_pages.h, which
// owns them.

namespace host {

// A page of the host's own: a dialog of a plug-in that stands in another window, run by the
// plug-in's dialog procedure.
class Page {
 public:
  // Creates the page from dialog `dialog_id` of `module` and shows it. `procedure` gets `parameter`
  // when it is to initialise the dialog. Returns null when the dialog cannot be created.
  [[nodiscard]] static std::unique_ptr<Page> Open(HINSTANCE module, int dialog_id, HWND parent,
                                                  platform::DialogProcedure procedure,
                                                  std::intptr_t parameter);

  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;
  virtual ~Page() = default;

  [[nodiscard]] virtual HWND Window() const = 0;

  // Takes the page away. Its procedure may be the one who asks for it; the object has to live until
  // that has returned.
  virtual void Close() = 0;

 protected:
  Page() = default;
};

}  // namespace host
