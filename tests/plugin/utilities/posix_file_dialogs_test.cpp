#include <cstring>

#include "tests/plugin/utilities/conversion_fixture.h"
#include "tests/support/forwarding_desktop.h"
#include "tests/support/trc_text.h"

// What the conversion makes of the answers of the system's file dialogs.

namespace orvane {
namespace {

using test::ConversionTest;
using test::TrcText;
using testing::IsEmpty;

std::string Take() { return TrcText{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}}.Text(); }

// Chooses a file whose path is as short as no scripted user's.
class ShortPathDesktop final : public test::ForwardingDesktop {
 public:
  bool ChooseFiles(const platform::FileDialog& /*dialog*/, char* buffer, std::size_t size,
                   std::size_t& name_offset) override {
    room_ = size;
    name_offset = 0;
    std::memcpy(buffer, "ab\0", 4);
    return true;
  }
  std::size_t room_ = 0;
};

TEST_F(ConversionTest, FindsNoOutputForAPathOfTwoCharacters) {
  ShortPathDesktop desktop;
  Write("ab.TRC", Take());
  const auto here = std::filesystem::current_path();
  std::filesystem::current_path(folder_.Path());
  EXPECT_FALSE(Convert());
  std::filesystem::current_path(here);
  EXPECT_EQ(desktop.room_, 260'000u);
  EXPECT_FALSE(application_.progress().IsOpen());
  EXPECT_THAT(Messages(), IsEmpty());
}

}  // namespace
}  // namespace orvane
