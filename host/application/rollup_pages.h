#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/base/misuse_log.h"
#include "platform/export.h"
#include "platform/handles.h"

// The pages that plug-ins have added to the command panel. Each is a modeless dialog of the desktop
// in use.

namespace host {

class Page;

struct RollupPage {
  HWND window = nullptr;
  std::string title;
  unsigned flags = 0;
  int category = 0;
};

class SKELDER_API RollupPages {
 public:
  // Deleting what is not open is noted in `misuse`, which must outlive this object.
  explicit RollupPages(MisuseLog& misuse);
  RollupPages(const RollupPages&) = delete;
  RollupPages& operator=(const RollupPages&) = delete;
  ~RollupPages();

  // Adds and shows a page made from dialog `dialog_id` of `module`, which `procedure` runs. `page`
  // tells the rest; its window is not looked at. Returns its window, or null when the dialog cannot
  // be created.
  HWND Add(HINSTANCE module, int dialog_id, HWND parent, platform::DialogProcedure procedure,
           std::intptr_t parameter, RollupPage page);

  // Deletes a page. May be called by the page's own procedure.
  void Delete(HWND window);

  // The open pages, in the order in which they were added.
  const std::vector<RollupPage>& Open() const { return open_; }

 private:
  MisuseLog& misuse_;
  std::vector<RollupPage> open_;

  // All pages so far: one may be on the call stack while it is deleted.
  std::vector<std::unique_ptr<Page>> pages_;
};

}  // namespace host
