#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "cli/common/outputs.h"
#include "cli/export/exported_motion.h"
#include "formats/bvk/writer.h"
#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/htr/writer.h"
#include "inspect/summary/bvk_summary.h"
#include "tests/cli/orvane_test.h"
#include "tests/host/scene/scene_fixture.h"
#include "tests/support/failing_memory.h"
#include "tests/support/temporary_folder.h"

// What is said when memory runs out at any moment of a look at what the plug-in has written.
namespace {

// Lets each allocation of `look` fail once, and expects that memory is then blamed.
void ExpectBlameOfMemory(const std::string& name, const std::function<void()>& look) {
  int failures = 0;
  for (bool has_failed = true; has_failed; ++failures) {
    test::FailAllocationAfter(failures);
    try {
      look();
    } catch (const cli::Failure& failure) {
      EXPECT_EQ(failure.status, cli::ExitStatus::kInputOutput);
      EXPECT_EQ(failure.complaints.front().subject, name);
      EXPECT_EQ(failure.complaints.front().text,
                "could not be read back: There is not enough memory");
      EXPECT_EQ(failure.complaints.front().advice, "");
    }
    has_failed = test::StopFailingAllocations();
  }
  EXPECT_GT(failures, 3);
}

class MemoryTest : public host::SceneFixture {};

TEST_F(MemoryTest, IsBlamedForAMotionThatIsNotReadBack) {
  const test::TemporaryFolder folder;
  orvane::HtrDocument document;
  ASSERT_EQ(ReadHtrBytes(document, test::SmallMotion(), true), "");
  const std::string path = folder.File("walk.htr");
  ASSERT_EQ(WriteHtrFile(document, path), "");
  NewBone("Spine", NewBone("Hips"));
  ExpectBlameOfMemory("out.htr", [&] { cli::CheckExport(path, "out.htr", scene_); });
}

TEST_F(MemoryTest, IsBlamedForMarkersThatAreNotReadBack) {
  const test::TemporaryFolder folder;
  orvane::TRCDocument document;
  document.AddMarker(orvane::TRCMarker(std::string(1000, 'x')));
  std::string text;
  PrintBvk(document, {"walk", "Wed Jun 30 21:49:08 1993\n", {}},
           [&text](std::string_view piece) { text += piece; });
  const std::string path = folder.Write("walk.bvk", text);
  ExpectBlameOfMemory(
      "out.bvk", [&] { cli::ReadBack("out.bvk", [&] { return orvane::SummarizeBvk(path); }); });
}

}  // namespace
