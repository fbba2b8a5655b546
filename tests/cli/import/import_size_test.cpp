#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"
#include "tests/support/user_settings.h"

// How large the objects are that an import of markers makes.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::TrcText;
using testing::HasSubstr;
using testing::Not;

using Flags = std::vector<std::string>;

// Two markers, 1700 mm from each other.
TrcText TwoMarkers() {
  return {.markers = {"low", "high"}, .frames = {{"0\t0\t0", "0\t1700\t0"}, {"0\t0\t0", ""}}};
}

class ImportSizeTest : public test::OrvaneTest {
 protected:
  ImportSizeTest() { Write("walk.trc", TwoMarkers().Text()); }

  ProgramResult Import(const Flags& flags) const {
    Flags arguments = {"import", "walk.trc", "-o", "walk.glb", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  // The diameter of the first marker, in the unit of the scene.
  double Diameter(const Flags& flags) const {
    const ProgramResult result = Import(flags);
    EXPECT_EQ(result.status, 0) << result.error;
    const json scene = json::parse(Orvane({"scene", "walk.glb", "--json"}).output);
    return 2.0 * scene["nodes"].back()["parameters"][0].get<double>();
  }
};

TEST_F(ImportSizeTest, IsChosenToFitAndSaidToBe) {
  EXPECT_EQ(Diameter({}), 25.0);
  EXPECT_THAT(Import({}).output,
              HasSubstr("\n  Size    25 mm, chosen; --size sets it, the dialog's own is 1\n"));
  EXPECT_EQ(json::parse(Import({"--json"}).output)["chosen_size_mm"], 25);
}

TEST_F(ImportSizeTest, FitsInScenesOfAnyUnitAndScale) {
  EXPECT_FLOAT_EQ(static_cast<float>(Diameter({"--system-unit", "cm"})), 2.5F);
  EXPECT_EQ(Diameter({"--scale", "4"}), 100.0);
  EXPECT_EQ(Diameter({"--into", "walk.glb"}), 25.0);
}

TEST_F(ImportSizeTest, IsTheUsersWhereThereIsOne) {
  EXPECT_EQ(Diameter({"--size", "7"}), 7.0);
  EXPECT_EQ(Diameter({"--size", "7", "--scale", "2"}), 14.0);
  EXPECT_THAT(Import({"--size", "7"}).output, Not(HasSubstr("Size")));
  EXPECT_EQ(json::parse(Import({"--json", "--size", "7"}).output)["chosen_size_mm"], nullptr);
}

TEST_F(ImportSizeTest, IsTheDialogsWithTheUsersSettings) {
  const test::NoUserSettings none(folder_.File("config"));
  EXPECT_EQ(Diameter({"--settings", "user"}), 1.0);
  EXPECT_EQ(Diameter({"--settings", "user", "--size", "3", "--scale", "2"}), 6.0);
  EXPECT_FLOAT_EQ(static_cast<float>(Diameter({"--settings", "user", "--size", "25mm"})), 25.0F);
}

struct Length {
  std::string text;
  Flags flags;
  double diameter;
};

TEST_F(ImportSizeTest, TakesLengths) {
  const std::vector<Length> rows = {{"25mm", {}, 25.0},
                                    {"2.5 cm", {}, 25.0},
                                    {"0.5m", {}, 500.0},
                                    {"2in", {"--system-unit", "in"}, 2.0},
                                    {"1ft", {"--system-unit", "in"}, 12.0},
                                    {"25mm", {"--scale", "10"}, 25.0},
                                    {"25mm", {"--scale", "-0.5"}, 25.0},
                                    {"5cm", {"--system-unit", "cm", "--scale", "2"}, 5.0}};
  for (const auto& [text, flags, diameter] : rows) {
    Flags all = flags;
    all.insert(all.end(), {"--size", text});
    EXPECT_FLOAT_EQ(static_cast<float>(Diameter(all)), static_cast<float>(diameter)) << text;
  }
}

TEST_F(ImportSizeTest, AnUnknownUnitIsWrongUsage) {
  const ProgramResult result = Import({"--size", "25px"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: --size: px is no unit\n  mm, cm, m, in and ft are.\n");
}

TEST_F(ImportSizeTest, OfSegmentsIsNoLength) {
  Write("walk.htr", test::SmallMotion());
  const ProgramResult result =
      Orvane({"import", "walk.htr", "-o", "bones.glb", "--segment-size", "25mm"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error,
            "orvane: --segment-size: the size of a segment is no length, but a part of its own "
            "length\n  1 is a fifth of it.\n");
  EXPECT_THAT(Orvane({"import", "walk.htr", "-o", "bones.glb"}).output, Not(HasSubstr("Size")));
}

TEST_F(ImportSizeTest, IsNotChosenWhereNothingIsMade) {
  ASSERT_EQ(Import({}).status, 0);
  const ProgramResult result = Orvane({"import", "walk.trc", "--into", "walk.glb", "--apply",
                                       "--select", "low", "--selected-only", "-o", "more.glb"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.output, Not(HasSubstr("Size")));
}

}  // namespace
