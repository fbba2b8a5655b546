#include "plugin/exchange/scale_controls.h"

#include <gtest/gtest.h>

#include "tests/support/fake_dialog.h"

namespace orvane {
namespace {

constexpr int kGlobal = 1088;
constexpr int kSize = 1104;

class ScaleControlsTest : public testing::Test {
 protected:
  std::string Read(const std::string& size, const std::string& scale) {
    dialog_[kSize].text = size;
    dialog_[kGlobal].text = scale;
    return ReadScales(dialog_, scales_);
  }

  test::FakeDialog dialog_;
  float size_ = 1.5F;
  double scale_ = -0.25;
  ImportScales scales_{size_, scale_};
};

TEST_F(ScaleControlsTest, ShowTheFactorsOfTheRecord) {
  FillScales(dialog_, scales_);
  EXPECT_EQ(dialog_[kSize].text, "1.500000");
  EXPECT_EQ(dialog_[kGlobal].text, "-0.250000");
}

TEST_F(ScaleControlsTest, AreTakenOver) {
  EXPECT_EQ(Read("-2x", " 3e1"), "");
  EXPECT_EQ(size_, -2.0F);
  EXPECT_EQ(scale_, 30.0);
}

TEST_F(ScaleControlsTest, ASizeOf0EndsIt) {
  EXPECT_EQ(Read("0", "3"), "Please choose a non-zero size.");
  EXPECT_EQ(scale_, -0.25);
  EXPECT_EQ(Read("1e-60", "3"), "Please choose a non-zero size.");
  EXPECT_EQ(Read("big", "3"), "Please choose a non-zero size.");
}

TEST_F(ScaleControlsTest, AScaleOf0EndsItAndTheSizeStaysTaken) {
  EXPECT_EQ(Read("7", "0"), "Please choose a non-zero scale factor.");
  EXPECT_EQ(size_, 7.0F);
}

}  // namespace
}  // namespace orvane
