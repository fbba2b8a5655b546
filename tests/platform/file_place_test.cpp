#include "platform/file_place.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace {

using platform::PlaceOf;

TEST(PlaceOfTest, IsOneForAllPathsOfAFile) {
  const test::TemporaryFolder folder;
  std::filesystem::create_directory(folder.File("sub"));
  folder.Write("there", "");
  for (const std::string name : {"there", "missing"}) {
    const std::string place = PlaceOf(folder.File(name));
    EXPECT_EQ(PlaceOf(folder.File("./sub/../" + name)), place);
    EXPECT_NE(PlaceOf(folder.File("sub/" + name)), place);
  }
  const std::filesystem::path here = std::filesystem::current_path();
  EXPECT_EQ(PlaceOf("missing"), PlaceOf(platform::TextOf(here / "missing")));
}

// Whether or not the system makes two files of such names.
TEST(PlaceOfTest, DiffersByTheCaseOfLettersOnlyWhereFilesDo) {
  const test::TemporaryFolder folder;
  folder.Write("Walk.bvk", "");
  const bool is_one_file = std::filesystem::exists(folder.File("walk.BVK"));
  EXPECT_EQ(PlaceOf(folder.File("Walk.bvk")) == PlaceOf(folder.File("walk.BVK")), is_one_file);
}

}  // namespace
