#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <new>

#include "cli/common/outputs.h"
#include "cli/export/exported_motion.h"
#include "formats/bvk/writer.h"
#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/htr/writer.h"
#include "inspect/summary/bvk_summary.h"
#include "tests/cli/orvane_test.h"
#include "tests/host/scene/scene_fixture.h"
#include "tests/support/temporary_folder.h"

// What is said when memory runs out at any moment of a look at what the plug-in has written. This
// program has an allocation fail, the one that is counted down to.

namespace {

int allocations_left = -1;  // before the one that fails; below 0 none does

}  // namespace

void* operator new(std::size_t size) {
  if (allocations_left >= 0 && allocations_left-- == 0) throw std::bad_alloc();
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

// Lets each allocation of `look` fail once, and expects that memory is then blamed.
void ExpectBlameOfMemory(const std::string& name, const std::function<void()>& look) {
  int failures = 0;
  for (bool has_failed = true; has_failed; ++failures) {
    allocations_left = failures;
    try {
      look();
      has_failed = allocations_left < 0;
    } catch (const cli::Failure& failure) {
      EXPECT_EQ(failure.status, cli::ExitStatus::kInputOutput);
      EXPECT_EQ(failure.complaints.front().subject, name);
      EXPECT_EQ(failure.complaints.front().text,
                "could not be read back: There is not enough memory");
      EXPECT_EQ(failure.complaints.front().advice, "");
    }
    allocations_left = -1;
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
