#include "platform/terminal.h"

#include <windows.h>
#include <gtest/gtest.h>

namespace platform {
namespace {

// A console for the test, unless it was started in one. Wine makes none for a process that has none
// yet before that gives up what stands in for it.
class Console {
 public:
  Console() {
    if (GetConsoleOutputCP() != 0) return;
    FreeConsole();
    made_ = AllocConsole() != 0;
  }
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;
  ~Console() {
    if (made_) FreeConsole();
  }

 private:
  bool made_ = false;
};

TEST(Utf8ConsoleTest, TakesUtf8UntilItsEnd) {
  constexpr UINT kWestern = 1252;
  const Console console;
  const UINT former = GetConsoleOutputCP();
  ASSERT_NE(SetConsoleOutputCP(kWestern), 0);
  {
    const Utf8Console utf8;
    EXPECT_EQ(GetConsoleOutputCP(), UINT{CP_UTF8});
  }
  EXPECT_EQ(GetConsoleOutputCP(), kWestern);
  SetConsoleOutputCP(former);
}

}  // namespace
}  // namespace platform
