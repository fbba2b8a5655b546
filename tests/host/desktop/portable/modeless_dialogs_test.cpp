#include "host/desktop/portable/modeless_dialogs.h"

#include <gtest/gtest.h>

#include "platform/desktop.h"
#include "tests/host/desktop/dialog_fixture.h"

namespace host {
namespace {

class FindModelessTest : public DialogFixture {
 protected:
  platform::ModelessDialog Open(int dialog_id) {
    return platform::CreateModelessDialog(module, dialog_id, parent.Handle(), handler);
  }
};

TEST_F(FindModelessTest, FindsADialogByItsWindowWhileItIsOpen) {
  platform::Desktop& open = *platform::CurrentDesktop();
  const platform::ModelessDialog first = Open(kDialog);
  platform::ModelessDialog second = Open(kPage);
  EXPECT_EQ(open.FindModeless(first->Window()), first.get());
  EXPECT_EQ(open.FindModeless(second->Window()), second.get());
  EXPECT_EQ(open.FindModeless(parent.Handle()), nullptr);
  const HWND window = second->Window();
  platform::Dialog* const gone = second.release();
  open.DestroyModeless(*gone);
  EXPECT_EQ(open.FindModeless(window), nullptr);
  open.DestroyModeless(*gone);
}

}  // namespace
}  // namespace host
