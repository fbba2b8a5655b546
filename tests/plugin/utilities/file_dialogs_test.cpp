#include <cstring>

#include "tests/plugin/utilities/conversion_fixture.h"
#include "tests/support/file_dialog_watch.h"
#include "tests/support/forwarding_desktop.h"
#include "tests/support/trc_text.h"

// What the conversion asks of the system's file dialogs, and what it makes of their answers.

namespace orvane {
namespace {

using test::ConversionTest;
using test::TrcText;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Take() { return TrcText{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}}.Text(); }

TEST_F(ConversionTest, AsksForOneSourceThatExists) {
  test::FileDialogWatch watch;
  UserChooses({});
  EXPECT_FALSE(Convert());
  ASSERT_EQ(watch.shown.size(), 1u);
  const test::AskedFileDialog& asked = watch.shown[0];
  EXPECT_EQ(asked.title, "Select Source TRC Files...");
  EXPECT_EQ(asked.filter, "Orvane TRC Files (*.TRC)");
  EXPECT_EQ(asked.pattern, "*.trc");
  EXPECT_EQ(asked.extension, "trc");
  EXPECT_EQ(asked.folder, folder_.Path().string());
  EXPECT_EQ(asked.dialog.kind, platform::FileDialog::Kind::kOpen);
  EXPECT_EQ(asked.dialog.owner, application_.main_window());
  EXPECT_FALSE(asked.dialog.several);
  EXPECT_TRUE(asked.dialog.file_must_exist);
  EXPECT_TRUE(asked.dialog.folder_must_exist);
  EXPECT_TRUE(asked.dialog.hide_read_only_box);
}

TEST_F(ConversionTest, AsksForSeveralSourcesInABatch) {
  test::FileDialogWatch watch;
  EXPECT_TRUE(ConvertBatch({Write("walk.trc", Take()), Write("run.trc", Take())}));
  ASSERT_EQ(watch.shown.size(), 1u);
  EXPECT_TRUE(watch.shown[0].dialog.several);
}

TEST_F(ConversionTest, AsksForATargetInTheOutputFolder) {
  test::FileDialogWatch watch;
  converter_->trcName = false;
  UserChooses({Write("walk.trc", Take())});
  UserChooses({"step"});
  EXPECT_TRUE(Convert());
  ASSERT_EQ(watch.shown.size(), 2u);
  const test::AskedFileDialog& asked = watch.shown[1];
  EXPECT_EQ(asked.title, "Select Target BVK File...");
  EXPECT_EQ(asked.filter, "Kinarch Marker Files (*.BVK)");
  EXPECT_EQ(asked.pattern, "*.bvk");
  EXPECT_EQ(asked.extension, "bvk");
  EXPECT_EQ(asked.folder, folder_.File("out"));
  EXPECT_EQ(asked.dialog.kind, platform::FileDialog::Kind::kSave);
  EXPECT_TRUE(asked.dialog.ask_before_replacing);
  EXPECT_TRUE(asked.dialog.hide_read_only_box);
}

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
  EXPECT_THAT(host_.steps,
              ElementsAre("start Orvane ConvertBVK", "0", "pending", "cancel?", "100", "end"));
  EXPECT_EQ(desktop.room_, 260'000u);
  EXPECT_THAT(Messages(), IsEmpty());
}

}  // namespace
}  // namespace orvane
