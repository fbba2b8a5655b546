#include "tests/plugin/utilities/conversion_fixture.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

using test::ConversionTest;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char kRefused[] = "The file is does not have a compatible \"(X/Y/Z)\" header state";

// One marker, Head1, and one frame; `x` tells files apart.
std::string Take(const std::string& x = "1") {
  return TrcText{.markers = {"Head1"}, .frames = {{x + "\t2\t3"}}}.Text();
}

std::string BrokenTake() { return "a poem\n"; }

// --- One file ---

TEST_F(ConversionTest, WritesOneFileBesideItsSource) {
  UserChooses({Write("walk.trc", Take())});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Read("walk.bvk"), testing::EndsWith("$Order\nHEAD \n\n$Points\n"
                                                  "1\t1.000000\t-3.000000\t2.000000\t\n\n"));
  EXPECT_THAT(Read("walk.bvk"), HasSubstr("$Filename   walk\n"
                                          "$DateTime   TIME\n\n"));
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(folder_.File("out/ConvertBVKLog.txt")));
}

TEST_F(ConversionTest, AsksForOneSource) {
  UserChooses({});
  EXPECT_FALSE(Convert());
  ASSERT_EQ(dialogs_.size(), 1u);
  const host::ShownFileDialog& shown = dialogs_[0];
  EXPECT_EQ(shown.title, "Select Source TRC Files...");
  EXPECT_EQ(shown.filter, "Orvane TRC Files (*.TRC)");
}

TEST_F(ConversionTest, KeepsTheInputFolderOfOneFile) {
  std::filesystem::create_directory(folder_.Path() / "takes");
  UserChooses({Write("takes/walk.trc", Take())});
  EXPECT_TRUE(Convert());
  EXPECT_EQ(converter_->inputPath, folder_.Path().string());
}

TEST_F(ConversionTest, OverwritesTheLastThreeCharactersWhateverTheyAre) {
  UserChooses({Write("walk.mocap", Take())});
  Write("walk.mocap.TRC", Take());
  EXPECT_TRUE(Convert());
  EXPECT_TRUE(std::filesystem::exists(folder_.File("walk.mobvk")));
}

TEST_F(ConversionTest, AsksForTheTarget) {
  converter_->trcName = false;
  UserChooses({Write("walk.trc", Take())});
  UserChooses({"step"});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Read("out/step.bvk"), HasSubstr("$Filename   step\n"));
  ASSERT_EQ(dialogs_.size(), 2u);
  const host::ShownFileDialog& shown = dialogs_[1];
  EXPECT_EQ(shown.title, "Select Target BVK File...");
  EXPECT_EQ(shown.filter, "Kinarch Marker Files (*.BVK)");
}

TEST_F(ConversionTest, EndsWhenTheUserNamesNoTarget) {
  converter_->trcName = false;
  UserChooses({Write("walk.trc", Take())});
  UserChooses({});
  EXPECT_FALSE(Convert());
}

TEST_F(ConversionTest, EndsWithoutAWordWhenTheOutputCannotBeCreated) {
  std::filesystem::create_directory(folder_.Path() / "walk.bvk");
  UserChooses({Write("walk.trc", Take())});
  EXPECT_FALSE(Convert());
  EXPECT_THAT(Messages(), IsEmpty());
}

// The user's text is "PATH: MESSAGE" and a line break.
TEST_F(ConversionTest, ShowsWhyTheReaderRefusedOneFileAndHasDoneItsWork) {
  const std::string path = Write("50%done.trc", BrokenTake());
  UserChooses({path});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Messages(), ElementsAre("ConvertBVK Error: " + path + ": " + kRefused + "\n"));
  EXPECT_FALSE(std::filesystem::exists(folder_.File("50%done.bvk")));
}

TEST_F(ConversionTest, LeavesTheBarOpenWhenTheUserCancels) {
  application_.cancellation().AtQuery(1);
  UserChooses({Write("walk.trc", Take())});
  EXPECT_FALSE(Convert());
  EXPECT_TRUE(application_.progress().IsOpen());
  EXPECT_FALSE(std::filesystem::exists(folder_.File("walk.bvk")));
}

// --- Mapping ---

TEST_F(ConversionTest, NeedsAMappingFileEvenWhenItIsNotUsed) {
  converter_->filter = false;
  converter_->mnmPath = folder_.File("missing.mnm");
  EXPECT_FALSE(Convert());
  EXPECT_THAT(dialogs_, IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ConversionTest, DropsMarkersThatTheMappingDoesNotKnow) {
  const TrcText take{.markers = {"head1", "Head1", "Toe"},
                     .frames = {{"1\t1\t1", "2\t2\t2", "3\t3\t3"}}};
  UserChooses({Write("walk.trc", take.Text())});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Read("walk.bvk"), HasSubstr("$NumMarkers 1\n"));
  EXPECT_THAT(Read("walk.bvk"),
              HasSubstr("$Order\nHEAD \n\n$Points\n1\t2.000000\t-2.000000\t2.000000\t\n\n"));
}

TEST_F(ConversionTest, KeepsAllMarkersAndTheirNamesWithoutTheFilter) {
  converter_->filter = false;
  UserChooses({Write("walk.trc", TrcText{.markers = {"Head1", "Toe"}}.Text())});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Read("walk.bvk"), HasSubstr("$NumMarkers 2\n"));
  EXPECT_THAT(Read("walk.bvk"), HasSubstr("$Order\nHead1 Toe \n"));
}

TEST_F(ConversionTest, StillUsesTheEntriesOfTheMappingFileBefore) {
  const TrcText take{.markers = {"Head1", "Toe"}};
  UserChooses({Write("walk.trc", take.Text())});
  EXPECT_TRUE(Convert());
  converter_->mnmPath = Write("second.mnm", "SKULL\tHead1\t\nLTOE\tToe\t\n");
  UserChooses({folder_.File("walk.trc")});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Read("walk.bvk"), HasSubstr("$Order\nHEAD LTOE \n"));
  EXPECT_EQ(converter_->mapping.Count(), 3u);
}

// --- Offset ---

TEST_F(ConversionTest, AddsTheOffsetOfItsSettings) {
  converter_->offset = true;
  converter_->offsetX = 10;
  converter_->offsetY = 20;
  converter_->offsetZ = 40;
  const std::string path = Write("walk.trc", Take());
  UserChooses({path});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Read("walk.bvk"), HasSubstr("1\t11.000000\t-43.000000\t22.000000\t\n"));
  converter_->trcSpace = false;
  UserChooses({path});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Read("walk.bvk"), HasSubstr("1\t11.000000\t17.000000\t42.000000\t\n"));
  converter_->offset = false;
  UserChooses({path});
  EXPECT_TRUE(Convert());
  EXPECT_THAT(Read("walk.bvk"), HasSubstr("1\t1.000000\t-3.000000\t2.000000\t\n"));
}

// --- Batches ---

TEST_F(ConversionTest, WritesABatchAndItsLog) {
  const std::string walk = Write("walk.trc", Take("1"));
  const std::string run = Write("run.fast.TRC", Take("2"));
  EXPECT_TRUE(ConvertBatch({walk, run}));
  EXPECT_THAT(Read("out/walk.bvk"), HasSubstr("$Filename   walk\n"));
  EXPECT_THAT(Read("out/run.fast.bvk"), HasSubstr("$Filename   run.fast\n"));
  EXPECT_THAT(Read("out/run.fast.bvk"), HasSubstr("1\t2.000000\t-3.000000\t2.000000\t\n"));
  EXPECT_EQ(Log(),
            "Orvane OrvaneFileIO TRC to BVK Batch Conversion Log\n"
            "TIME\n"
            "Processing 2 files...\n"
            "file: " +
                walk + " done.\nfile: " + run + " done.\n");
}

TEST_F(ConversionTest, ConvertsABatchOfOneFile) {
  EXPECT_TRUE(ConvertBatch({Write("walk.trc", Take())}));
  EXPECT_TRUE(std::filesystem::exists(folder_.File("out/walk.bvk")));
  EXPECT_THAT(Log(), HasSubstr("Processing 1 files...\n"));
}

TEST_F(ConversionTest, RemembersTheFolderOfABatch) {
  std::filesystem::create_directory(folder_.Path() / "takes");
  EXPECT_TRUE(ConvertBatch({Write("takes/walk.trc", Take())}));
  EXPECT_EQ(converter_->inputPath, folder_.File("takes"));
}

TEST_F(ConversionTest, GoesOnWithWhatWasReadOfARefusedFile) {
  const std::string broken = Write("broken.trc", BrokenTake());
  const std::string walk = Write("walk.trc", Take());
  EXPECT_TRUE(ConvertBatch({broken, walk}));
  EXPECT_EQ(LoggedFiles(),
            broken + ": " + kRefused + "\nfile: " + broken + " done.\nfile: " + walk + " done.\n");
  EXPECT_THAT(Read("out/broken.bvk"), HasSubstr("$NumMarkers 0\n"));
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ConversionTest, LogsAFileThatHasVanished) {
  const std::string walk = Write("walk.trc", Take("1"));
  const std::string gone = Write("gone.trc", Take("2"));
  const std::string run = Write("run.trc", Take("3"));
  converter_->batch = true;
  host_.on_pending_messages = [&gone] { std::filesystem::remove(gone); };
  EXPECT_TRUE(ConvertBatch({walk, gone, run}));
  EXPECT_EQ(LoggedFiles(), "file: " + walk + " done.\n" + gone +
                               ": The file could not be opened\nfile: " + gone +
                               " done.\nfile: " + run + " done.\n");
  EXPECT_THAT(Read("out/gone.bvk"), HasSubstr("$NumFrames 0\n$NumMarkers 0\n"));
  EXPECT_THAT(Read("out/run.bvk"), HasSubstr("\t3.000000\t"));
}

TEST_F(ConversionTest, TakesThePathOfARefusedFileForAFormat) {
  const struct {
    const char* name;
    std::string logged;
  } cases[] = {
      {"50%done.trc", "500one.trc"},
      {"%s%s%n.trc", "(null)(null).trc"},
      {"%999999999d.trc", std::string(255, ' ') + "0.trc"},
      {"100%%.trc", "100%.trc"},
      {"a b'.trc", "a b'.trc"},
  };
  const std::string folder = folder_.File("");
  for (const auto& example : cases) {
    const std::string path = Write(example.name, BrokenTake());
    EXPECT_TRUE(ConvertBatch({path})) << example.name;
    EXPECT_EQ(LoggedFiles(),
              folder + example.logged + ": " + kRefused + "\nfile: " + path + " done.\n");
  }
}

TEST_F(ConversionTest, WritesPathsOfConvertedFilesAsTheyAre) {
  const std::string path = Write("50%done.trc", Take());
  EXPECT_TRUE(ConvertBatch({path}));
  EXPECT_EQ(LoggedFiles(), "file: " + path + " done.\n");
  EXPECT_THAT(Read("out/50%done.bvk"), HasSubstr("$Filename   50%done\n"));
}

TEST_F(ConversionTest, ConvertsTheFirstThousandOfABatch) {
  std::filesystem::create_directory(folder_.Path() / "t");
  std::vector<std::string> paths;
  for (int number = 10000; number < 11200; ++number) {
    paths.push_back(Write("t/" + std::to_string(number) + ".trc", Take()));
  }
  EXPECT_TRUE(ConvertBatch(paths));
  EXPECT_THAT(Log(), HasSubstr("Processing 1000 files...\n"));
  EXPECT_EQ(test::NamesIn(folder_.Path() / "out").size(), 1001u);
  EXPECT_TRUE(std::filesystem::exists(folder_.File("out/10999.bvk")));
  EXPECT_FALSE(std::filesystem::exists(folder_.File("out/11000.bvk")));
}

TEST_F(ConversionTest, TellsThatTheLogCannotBeOpened) {
  converter_->outputPath = folder_.File("missing");
  EXPECT_FALSE(ConvertBatch({Write("walk.trc", Take())}));
  EXPECT_THAT(Messages(), ElementsAre("ConvertBVK Error: Cannot Open Batch Log File."));
}

TEST_F(ConversionTest, AbandonsABatchWhenAnOutputCannotBeCreated) {
  std::filesystem::create_directory(folder_.Path() / "out/run.bvk");
  const std::string walk = Write("walk.trc", Take());
  const std::string run = Write("run.trc", Take());
  const std::string jump = Write("jump.trc", Take());
  EXPECT_FALSE(ConvertBatch({walk, run, jump}));
  EXPECT_EQ(LoggedFiles(), "file: " + walk + " done.\n");
  EXPECT_FALSE(std::filesystem::exists(folder_.File("out/jump.bvk")));
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_FALSE(application_.progress().IsOpen());
}

TEST_F(ConversionTest, StopsABatchBetweenTwoFiles) {
  application_.cancellation().AtQuery(2);
  const std::string walk = Write("walk.trc", Take());
  EXPECT_FALSE(ConvertBatch({walk, Write("run.trc", Take())}));
  EXPECT_EQ(LoggedFiles(), "file: " + walk + " done.\n");
  EXPECT_FALSE(std::filesystem::exists(folder_.File("out/run.bvk")));
  EXPECT_TRUE(application_.progress().IsOpen());
}

TEST_F(ConversionTest, AsksForEveryTargetOfABatchWithoutNamesOfItsOwn) {
  converter_->trcName = false;
  converter_->batch = true;
  const std::string walk = Write("walk.trc", Take());
  UserChooses({walk, Write("run.trc", Take())});
  UserChooses({"first"});
  UserChooses({});
  EXPECT_FALSE(Convert());
  EXPECT_TRUE(std::filesystem::exists(folder_.File("out/first.bvk")));
  EXPECT_EQ(LoggedFiles(), "file: " + walk + " done.\n");
}

TEST_F(ConversionTest, ForgetsTheFrameCountAndMarkersOfTheFileBefore) {
  const std::string walk = Write("walk.trc", Take());
  EXPECT_TRUE(ConvertBatch({walk, Write("broken.trc", BrokenTake())}));
  EXPECT_THAT(Read("out/broken.bvk"), HasSubstr("$NumFrames 0\n$NumMarkers 0\n"));
  // The rate of the cameras is what every reading keeps.
  EXPECT_THAT(Read("out/broken.bvk"), HasSubstr("$CaptureRate 60\n"));
}

TEST_F(ConversionTest, SavesNothing) {
  UserChooses({Write("walk.trc", Take())});
  EXPECT_TRUE(Convert());
  EXPECT_FALSE(settings_.FindValue("Software\\Orvane\\OrvaneFileIO\\Skelder\\ConvertBVK", "Batch"));
}

}  // namespace
}  // namespace orvane
