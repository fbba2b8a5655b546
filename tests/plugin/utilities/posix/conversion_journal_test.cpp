#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "plugin/resources/resource.h"
#include "tests/plugin/utilities/posix/utilities_stage.h"
#include "tests/support/trc_text.h"

// What a conversion asks of its host and its system, call by call.

namespace test {
namespace {

constexpr int kConvert = IDC_CONVERT;

// A panel that is open, and takes to convert. All outputs are watched.
struct Stage : UtilitiesStage {
  Stage() {
    for (const char* name : {"walk", "run", "jump"}) Write(name);
    folder.Write("50%d.trc", "a poem\n");
    for (const char* output :
         {"walk.bvk", "step.bvk", "out/walk.bvk", "out/50%d.bvk", "out/run.bvk", "out/jump.bvk"}) {
      journal.WatchFile(folder.File(output), output);
    }
    journal.WatchText(folder.File("out/ConvertBVKLog.txt"), "the log");
    desk.ChooseFiles([this](const host::ShownFileDialog&) {
      const std::vector<std::string> names = std::exchange(chosen, std::exchange(chosen_then, {}));
      host::FileChoice choice;
      for (const std::string& name : names) choice.paths.push_back(folder.File(name));
      return choice;
    });
  }

  void Write(const std::string& name) const {
    const TrcText take{.markers = {"Head1", "Hand"}, .frames = {{"1\t2\t3", ""}}};
    folder.Write(name + ".trc", take.Text());
  }

  JournalLines Convert() {
    Make();
    Open();
    journal.Take();
    Page().Click(kConvert);
    return journal.Take();
  }
  JournalLines Run() { return Convert(); }

  // What the user chooses in the first dialog for files, and then in the second; nothing: he
  // cancels.
  std::vector<std::string> chosen = {"walk.trc"};
  std::vector<std::string> chosen_then;
};

using Conversion = Disturbed<Stage>;

void PrepareBatch(Stage& stage) {
  stage.StoreFlag("Batch", true);
  stage.chosen = {"walk.trc", "50%d.trc", "run.trc"};
}

void PrepareAskedName(Stage& stage) {
  stage.StoreFlag("TRCName", false);
  stage.StoreFlag("Filter", false);
  stage.chosen_then = {"step.bvk"};
}

TEST(ConversionJournal, Single) {
  Stage stage;
  ExpectUtilitiesJournal("conversion", stage.Convert());
}

TEST(ConversionJournal, SingleWithANameThatIsAskedFor) {
  Stage stage;
  PrepareAskedName(stage);
  ExpectUtilitiesJournal("conversion_asked_name", stage.Convert());
}

TEST(ConversionJournal, Batch) {
  Stage stage;
  PrepareBatch(stage);
  ExpectUtilitiesJournal("conversion_batch", stage.Convert());
}

TEST(ConversionJournal, SecondBatch) {
  Stage stage;
  PrepareBatch(stage);
  stage.chosen_then = {"jump.trc"};
  stage.Convert();
  stage.Page().Click(kConvert);
  ExpectUtilitiesJournal("conversion_second_batch", stage.journal.Take());
}

TEST(ConversionJournal, SingleDisturbed) {
  const Conversion single{"conversion", [](Stage&) {}};
  JournalLines lines;
  Append(lines, single.When("there is no mapping file", [](Stage& stage) {
    std::filesystem::remove(stage.folder.File("map.mnm"));
  }));
  Append(lines, single.When("no file is chosen", [](Stage& stage) { stage.chosen.clear(); }));
  Append(lines, single.When("the file is refused", [](Stage& stage) {
    stage.chosen = {"50%d.trc"};
    stage.misuse = {"ProgressUpdate without an open progress bar",
                    "ProgressEnd without an open progress bar"};
  }));
  Append(lines, single.When("the output cannot be created", [](Stage& stage) {
    std::filesystem::create_directory(stage.folder.File("walk.bvk"));
  }));
  Append(lines, single.CancelledAt(1));
  const Conversion asked{"conversion_asked_name", PrepareAskedName};
  Append(lines, asked.When("no name is chosen", [](Stage& stage) { stage.chosen_then.clear(); }));
  ExpectUtilitiesJournal("conversion_disturbed", lines);
}

TEST(ConversionJournal, BatchDisturbed) {
  const Conversion batch{"conversion_batch", PrepareBatch};
  JournalLines lines;
  Append(lines, batch.When("the log cannot be created", [](Stage& stage) {
    std::filesystem::create_directory(stage.folder.File("out/ConvertBVKLog.txt"));
  }));
  Append(lines, batch.When("the second output cannot be created", [](Stage& stage) {
    std::filesystem::create_directory(stage.folder.File("out/50%d.bvk"));
  }));
  Append(lines, batch.CancelledAt(3));
  Append(lines,
         batch.When("one file is chosen", [](Stage& stage) { stage.chosen = {"walk.trc"}; }));
  ExpectUtilitiesJournal("conversion_batch_disturbed", lines);
}

// The numbers of a bar that is told in single precision.
TEST(ConversionJournal, AHundredFiles) {
  Stage stage;
  PrepareBatch(stage);
  stage.chosen.clear();
  for (int index = 1; index <= 100; ++index) {
    stage.Write(std::to_string(index));
    stage.chosen.push_back(std::to_string(index) + ".trc");
  }
  JournalLines progress;
  for (const std::string& line : stage.Convert()) {
    if (line.rfind("progress", 0) == 0) progress.push_back(line);
  }
  ExpectUtilitiesJournal("hundred_files", progress);
}

}  // namespace
}  // namespace test
