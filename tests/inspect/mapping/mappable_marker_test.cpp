#include "inspect/mapping/mappable_marker.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(MappableMarkerTest, AMarkerHasANameOfItsOwnThatIsOneWord) {
  const std::vector<std::string> names = {"LFHD", "C 7", "", "head", "head", "Head"};
  EXPECT_TRUE(orvane::CanBeMapped(names, 0));
  EXPECT_FALSE(orvane::CanBeMapped(names, 1));
  EXPECT_FALSE(orvane::CanBeMapped(names, 2));
  EXPECT_FALSE(orvane::CanBeMapped(names, 3));
  EXPECT_FALSE(orvane::CanBeMapped(names, 4));
  EXPECT_TRUE(orvane::CanBeMapped(names, 5));
}

}  // namespace
