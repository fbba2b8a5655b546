#include "sdk/skelderutil/filename.h"

#include <gtest/gtest.h>

namespace {

struct Split {
  const char* name;
  const char* path;
  const char* file;
  const char* extension;
};

class SplitFilenameTest : public testing::TestWithParam<Split> {};

TEST_P(SplitFilenameTest, FindsTheParts) {
  CStr path("before");
  CStr file("before");
  CStr extension("before");
  SplitFilename(GetParam().name, &path, &file, &extension);
  EXPECT_STREQ(path, GetParam().path);
  EXPECT_STREQ(file, GetParam().file);
  EXPECT_STREQ(extension, GetParam().extension);
}

INSTANTIATE_TEST_SUITE_P(
    Names, SplitFilenameTest,
    testing::Values(Split{R"(C:\takes\walk.trc)", R"(C:\takes)", "walk", ".trc"},
                    Split{"/takes/walk.trc", "/takes", "walk", ".trc"},
                    Split{R"(C:\takes/day\walk.trc)", R"(C:\takes/day)", "walk", ".trc"},
                    Split{R"(C:\takes\day/walk.trc)", R"(C:\takes\day)", "walk", ".trc"},
                    Split{"walk.trc", "", "walk", ".trc"}, Split{"walk", "", "walk", ""},
                    Split{"walk.day.trc", "", "walk.day", ".trc"},
                    Split{"takes.old/walk", "takes.old", "walk", ""},
                    Split{"takes/", "takes", "", ""}, Split{"/walk.trc", "", "walk", ".trc"},
                    Split{".trc", "", "", ".trc"}, Split{"walk.", "", "walk", "."},
                    Split{"", "", "", ""}, Split{nullptr, "", "", ""}));

TEST(SplitFilename, LeavesOutPartsThatNobodyWants) {
  SplitFilename("takes/walk.trc", nullptr, nullptr, nullptr);
  CStr file;
  SplitFilename("takes/walk.trc", nullptr, &file, nullptr);
  EXPECT_STREQ(file, "walk");
}

}  // namespace
