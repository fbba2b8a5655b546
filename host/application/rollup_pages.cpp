#include "host/application/rollup_pages.h"

#include <algorithm>
#include <utility>

#include "host/desktop/page.h"

namespace host {

RollupPages::RollupPages(MisuseLog& misuse) : misuse_(misuse) {}

RollupPages::~RollupPages() = default;

HWND RollupPages::Add(HINSTANCE module, int dialog_id, HWND parent,
                      platform::DialogProcedure procedure, std::intptr_t parameter,
                      RollupPage page) {
  std::unique_ptr<Page> opened = Page::Open(module, dialog_id, parent, procedure, parameter);
  if (opened == nullptr) return nullptr;
  page.window = opened->Window();
  pages_.push_back(std::move(opened));
  open_.push_back(std::move(page));
  return open_.back().window;
}

void RollupPages::Delete(HWND window) {
  const auto page = std::find_if(open_.begin(), open_.end(), [window](const RollupPage& candidate) {
    return candidate.window == window;
  });
  if (page == open_.end()) {
    misuse_.Report("DeleteRollupPage of a page that is not open");
    return;
  }
  open_.erase(page);
  // The latest with that window: the system may use the window of a closed one again.
  const auto closing =
      std::find_if(pages_.rbegin(), pages_.rend(),
                   [window](const auto& candidate) { return candidate->Window() == window; });
  (*closing)->Close();
}

}  // namespace host
