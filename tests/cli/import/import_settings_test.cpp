#include <cstring>

#include "host/desktop/settings.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/user_settings.h"

namespace {

using test::ProgramResult;
using testing::HasSubstr;
using testing::IsEmpty;

// Imports with the user's settings, which the dialog stores when it is closed with OK.
class ImportSettingsTest : public test::OrvaneTest {
 protected:
  ImportSettingsTest() { Write("walk.htr", test::SmallMotion()); }

  ProgramResult Import(const std::vector<std::string>& flags) const {
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", "walk.glb", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  ProgramResult ImportAsUser(std::vector<std::string> flags) const {
    flags.insert(flags.end(), {"--settings", "user"});
    return Import(flags);
  }

  // The bytes stored as `name`; empty when there are none.
  static std::string Stored(const std::string& name) {
    const host::UserSettings settings;
    const auto value =
        settings.FindValue("Software\\Orvane\\OrvaneFileIO\\Skelder\\ImportHTR", name);
    return value ? value->bytes : "";
  }

  template <typename Value>
  static std::string Bytes(Value value) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
  }

  test::NoUserSettings none_{folder_.File("config")};
};

TEST_F(ImportSettingsTest, FreshSettingsStoreNothing) {
  EXPECT_EQ(Import({"--tcb"}).status, 0);
  EXPECT_EQ(Import({"--tcb", "--settings", "fresh"}).status, 0);
  EXPECT_FALSE(none_.AreStored());
}

struct StoredFlag {
  std::string name;  // of the stored value
  std::vector<std::string> on;
  std::vector<std::string> off;
};

class StoredFlagTest : public ImportSettingsTest, public testing::WithParamInterface<StoredFlag> {};

// Both sides of a flag, the second from what the first has stored.
TEST_P(StoredFlagTest, SetsItsControlAndIsStored) {
  EXPECT_EQ(ImportAsUser(GetParam().on).status, 0);
  EXPECT_EQ(Stored(GetParam().name), std::string(1, '\1'));
  EXPECT_EQ(ImportAsUser({}).status, 0);
  EXPECT_EQ(Stored(GetParam().name), std::string(1, '\1')) << "without a flag it stays";
  EXPECT_EQ(ImportAsUser(GetParam().off).status, 0);
  EXPECT_EQ(Stored(GetParam().name), std::string(1, '\0'));
}

INSTANTIATE_TEST_SUITE_P(
    All, StoredFlagTest,
    testing::Values(StoredFlag{"Animate", {"--animation"}, {"--no-animation"}},
                    StoredFlag{"KeyBasePosition", {"--base-position"}, {"--no-base-position"}},
                    StoredFlag{"EndEffectors", {"--end-effectors"}, {"--no-end-effectors"}},
                    StoredFlag{"Range", {"--range", "1:2"}, {"--all"}},
                    StoredFlag{"FPS", {"--frame-rate", "file"}, {"--frame-rate", "keep"}}),
    [](const auto& test_case) { return test_case.param.name; });

TEST_F(ImportSettingsTest, RotationControllerIsStored) {
  EXPECT_EQ(ImportAsUser({"--tcb"}).status, 0);
  EXPECT_EQ(Stored("RotationController"), Bytes(std::int32_t{1}));
  EXPECT_EQ(ImportAsUser({"--euler"}).status, 0);
  EXPECT_EQ(Stored("RotationController"), Bytes(std::int32_t{0}));
}

TEST_F(ImportSettingsTest, NumbersAreStored) {
  EXPECT_EQ(ImportAsUser({"--segment-size", "2.5", "--scale", "0.125"}).status, 0);
  EXPECT_EQ(Stored("Size"), Bytes(2.5F));
  EXPECT_EQ(Stored("ScaleFactor"), Bytes(0.125));
}

// The dialog is stored before the importer finds that nothing is selected.
TEST_F(ImportSettingsTest, ApplyIsStoredAndDisablesTheControlsOfTheNextRun) {
  EXPECT_EQ(ImportAsUser({"--apply"}).status, 1);
  EXPECT_EQ(Stored("Apply"), std::string(1, '\1'));
  const ProgramResult result = ImportAsUser({"--segment-size", "2"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error,
            "orvane: --segment-size: the dialog has this control disabled while \"Apply\" is "
            "chosen; --create enables it\n");
  EXPECT_EQ(ImportAsUser({"--create", "--segment-size", "2"}).status, 0);
  EXPECT_EQ(Stored("Apply"), std::string(1, '\0'));
}

TEST_F(ImportSettingsTest, ARefusedDialogStoresNothing) {
  EXPECT_EQ(ImportAsUser({"--tcb", "--scale", "0"}).status, 1);
  EXPECT_THAT(Stored("RotationController"), IsEmpty());
}

// The stored frame rate choice of a new user is to keep the scene's.
TEST_F(ImportSettingsTest, WithTheUsersSettingsTheFrameRateIsTheDialogs) {
  EXPECT_THAT(ImportAsUser({}).output, HasSubstr("at 30 frames per second"));
  EXPECT_THAT(Import({}).output, HasSubstr("at 60 frames per second"));
}

}  // namespace
