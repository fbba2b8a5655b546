#include <windows.h>
#include <gtest/gtest.h>

#include "host/desktop/top_level_window.h"
#include "sdk/skelderutil/window.h"

namespace host {
namespace {

class CenterWindowTest : public testing::Test {
 protected:
  static RECT AreaOf(const TopLevelWindow& window) {
    RECT area{};
    GetWindowRect(window.Handle(), &area);
    return area;
  }

  static void Place(const TopLevelWindow& window, int x, int y, int width, int height) {
    SetWindowPos(window.Handle(), nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
  }

  const TopLevelWindow window_;
  const TopLevelWindow other_;
};

TEST_F(CenterWindowTest, PutsTheMiddlesOfBothTogether) {
  Place(other_, 100, 50, 600, 400);
  Place(window_, 0, 0, 300, 200);
  CenterWindow(window_.Handle(), other_.Handle());
  EXPECT_EQ(AreaOf(window_).left, 250);
  EXPECT_EQ(AreaOf(window_).top, 150);
  EXPECT_EQ(AreaOf(window_).right, 550);
  EXPECT_EQ(AreaOf(window_).bottom, 350);
}

TEST_F(CenterWindowTest, KeepsTheWindowWhereItCanBeSeen) {
  Place(other_, -500, -300, 200, 200);
  Place(window_, 50, 50, 300, 200);
  CenterWindow(window_.Handle(), other_.Handle());
  EXPECT_EQ(AreaOf(window_).left, 0);
  EXPECT_EQ(AreaOf(window_).top, 0);
}

TEST_F(CenterWindowTest, CentresOnTheScreenWhatHasNothingToBeCentredOver) {
  RECT work{};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
  Place(window_, 1, 2, 300, 200);
  CenterWindow(window_.Handle(), nullptr);
  EXPECT_EQ(AreaOf(window_).left, (work.left + work.right - 300) / 2);
  EXPECT_EQ(AreaOf(window_).top, (work.top + work.bottom - 200) / 2);
}

}  // namespace
}  // namespace host
