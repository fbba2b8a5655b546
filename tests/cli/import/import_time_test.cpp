#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"
#include "tests/support/trc_text.h"

// The time that viewers are shown, of files whose rates the host's ticks do not hold.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::SceneFile;
using test::SmallMotion;
using test::TrcText;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using Flags = std::vector<std::string>;

constexpr std::size_t kFrames = 3;

class ImportTimeTest : public test::OrvaneTest {
 protected:
  ProgramResult Import(const std::string& file, const std::string& scene, Flags flags = {}) const {
    flags.insert(flags.begin(), {"import", file, "-o", scene, "--force", "--quiet"});
    return Orvane(flags);
  }

  // A file of three frames at `rate`, of that kind.
  std::string Take(const std::string& rate, bool is_motion) const {
    const std::string file = std::string("take") + (is_motion ? ".htr" : ".trc");
    TrcText text{.markers = {"m"}, .frames = {{"1\t2\t3"}, {"2\t2\t3"}, {"3\t2\t3"}}};
    text.data_rate = rate;
    Write(file, is_motion ? Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate " + rate)
                          : text.Text());
    return file;
  }

  // When viewers are shown the keys of what the file has made.
  std::vector<double> Times(const std::string& scene, bool is_motion) const {
    const SceneFile file(folder_.File(scene));
    return is_motion ? file.KeyTimes("Hips") : file.KeyTimes("m", "translation");
  }

  json Scene(const std::string& scene) const {
    json document = json::parse(Orvane({"scene", scene, "--json"}).output);
    document.erase("file");
    document.erase("recording");
    return document;
  }
};

struct Rate {
  const char* text;
  double value;
  double in_host;
};

constexpr Rate kRates[] = {{"60", 60.0, 60.0},
                           {"250", 250.0, 4800.0 / 19},
                           {"59.94", 59.94, 4800.0 / 81},
                           {"1000", 1000.0, 1200.0}};

// One step of single precision, which is what a file holds times in.
void ExpectLast(const std::vector<double>& times, double rate) {
  ASSERT_THAT(times, SizeIs(kFrames));
  EXPECT_FLOAT_EQ(static_cast<float>(times.back() - times.front()),
                  static_cast<float>((kFrames - 1) / rate));
}

TEST_F(ImportTimeTest, OfANewSceneIsThatOfTheFile) {
  for (const bool is_motion : {true, false}) {
    for (const auto& [text, rate, in_host] : kRates) {
      const std::string file = Take(text, is_motion);
      EXPECT_EQ(Import(file, "file.glb").status, 0);
      EXPECT_EQ(Import(file, "host.glb", {"--time", "host"}).status, 0);
      ExpectLast(Times("file.glb", is_motion), rate);
      ExpectLast(Times("host.glb", is_motion), in_host);
      EXPECT_EQ(Scene("file.glb"), Scene("host.glb")) << "what the plug-in has made is the same";
    }
  }
}

TEST_F(ImportTimeTest, IsTheHostsWhereTheFrameRateIsKept) {
  const std::string file = Take("59.94", true);
  EXPECT_EQ(Import(file, "kept.glb", {"--frame-rate", "keep"}).status, 0);
  ExpectLast(Times("kept.glb", true), 30.0);
  const ProgramResult result = Import(file, "kept.glb", {"--frame-rate", "keep", "--time", "file"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error,
            "orvane: --time file: the scene keeps its own rate with --frame-rate keep\n");
}

TEST_F(ImportTimeTest, IsTheHostsWhereTheFileHasNone) {
  const std::string file = Take("0", true);
  EXPECT_EQ(Import(file, "none.glb").status, 0);
  ExpectLast(Times("none.glb", true), 1.0);
  EXPECT_EQ(Import(file, "none.glb", {"--time", "file"}).error,
            "orvane: --time file: the file has no such rate\n");
}

TEST_F(ImportTimeTest, DecidesHowMuchARateMatters) {
  const std::string file = Take("250", false);
  const std::string line =
      "The host has no such frame rate: \"250\" (line 3, column 1). 250 a second become 252.6 in "
      "the host: a minute lasts 59.4 s there.";
  const Flags import = {"import", file, "-o", "out.glb", "--force"};
  EXPECT_EQ(Orvane(import).error, "orvane: take.trc: note: " + line +
                                      " Viewers play the rate of the file. "
                                      "[trc-rate-inexact]\n");
  Flags host = import;
  host.insert(host.end(), {"--time", "host"});
  EXPECT_EQ(Orvane(host).error, "orvane: take.trc: warning: " + line + " [trc-rate-inexact]\n");
}

TEST_F(ImportTimeTest, IsKeptByASecondSaveOfTheSameRate) {
  const std::string file = Take("59.94", true);
  ASSERT_EQ(Import(file, "one.glb").status, 0);
  const ProgramResult result =
      Import(file, "two.glb", {"--into", "one.glb", "--apply", "--select", "Hips"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  ExpectLast(Times("two.glb", true), 59.94);
}

TEST_F(ImportTimeTest, BecomesTheHostsWithAnotherRateAndIsSaidTo) {
  ASSERT_EQ(Import(Take("59.94", true), "one.glb").status, 0);
  const std::string cause =
      "orvane: take.trc: warning: Viewers are shown 59.94 frames per second of the scene, and ";
  const std::string effect =
      ". All of the scene goes by the host's time: a minute of what was there lasts 60.7 s. "
      "[apply-scene-time]\n";
  const std::string other = Take("60", false);
  EXPECT_EQ(Import(other, "two.glb", {"--into", "one.glb"}).error,
            "orvane: take.trc: warning: There are 60 frames per second in the file, 59.3 in the "
            "scene. The motion plays at 0.99 times its speed; --frame-rate file gives the scene "
            "the rate of the file. [apply-rate-differs]\n" +
                cause + "the file has 60" + effect);
  ExpectLast(Times("two.glb", true), 4800.0 / 81);
  EXPECT_THAT(Import(other, "two.glb", {"--into", "one.glb", "--time", "host"}).error,
              HasSubstr(cause + "the host's time is asked for" + effect));
  EXPECT_EQ(Import(other, "two.glb", {"--into", "one.glb", "--time", "file"}).error,
            "orvane: --time file: the motion in the scene has another rate, or goes by the host's "
            "time\n");
}

// --- A scene that keeps its rate ---

TEST_F(ImportTimeTest, OfASceneThatIsThereMakesOtherRatesPlayAtAnotherSpeedAndIsSaidTo) {
  const Flags into = {"--into", "one.glb"};
  for (const bool is_motion : {true, false}) {
    ASSERT_EQ(Import(Take("60", is_motion), "one.glb").status, 0);
    const std::string fast = Take("120", is_motion);
    EXPECT_EQ(Import(fast, "two.glb", into).error,
              "orvane: " + fast +
                  ": warning: There are 120 frames per second in the file, 60 in the scene. The "
                  "motion plays at half speed; --frame-rate file gives the scene the rate of the "
                  "file. [apply-rate-differs]\n");
    EXPECT_EQ(Import(fast, "two.glb", {"--into", "one.glb", "--strict"}).status, 1);
    EXPECT_THAT(Import(fast, "two.glb", {"--into", "one.glb", "--frame-rate", "file"}).error,
                Not(HasSubstr("apply-rate-differs")));
  }
  EXPECT_THAT(Import(Take("120", true), "new.glb", {"--frame-rate", "keep"}).error, IsEmpty())
      << "a scene without nodes";
}

TEST_F(ImportTimeTest, OfTheSameRateIsNotSaidToDifferBecauseOfTheHost) {
  for (const std::string rate : {"250", "59.94"}) {
    const std::string file = Take(rate, true);
    ASSERT_EQ(Import(file, "one.glb").status, 0);
    EXPECT_THAT(Import(file, "two.glb", {"--into", "one.glb"}).error, IsEmpty()) << rate;
    EXPECT_THAT(Import(file, "two.glb", {"--into", "one.glb", "--apply", "--select", "Hips"}).error,
                IsEmpty())
        << rate;
  }
}

}  // namespace
