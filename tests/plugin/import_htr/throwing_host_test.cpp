#include <gmock/gmock.h>

#include "platform/module.h"
#include "plugin/import_htr/import_htr.h"
#include "plugin/import_htr/scene_nodes.h"
#include "plugin/import_htr/skeleton_creator.h"
#include "tests/plugin/import_htr/skeleton_fixture.h"
#include "tests/support/failing_file_class.h"
#include "tests/support/htr_text.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/throwing_instances.h"

// The importer of motion files in a host whose calls throw.

namespace orvane {
namespace {

using test::ThrowNumber;

class ThrowingHostTest : public test::SkeletonTest {
 protected:
  void SetUp() override {
    test::HtrText file;
    file.segments = {{"Hips", "GLOBAL", "1 2 3 0 0 0 10", {"10 0 0 0 0 0", "20 0 0 0 0 0"}},
                     {"Leg", "Hips", "0 4 0 0 0 0 20", {"0 0 0 0 0 0", "0 1 0 0 0 0"}}};
    path_ = folder_.Write("walk.htr", file.Text());
    options_.rotationController = 1;
    options_.keyBasePosition = true;
  }

  int Import(const char* path, Interface* host) {
    return importer_.DoImport(path, nullptr, host, 1);
  }

  // Imports with every call failing in turn, and expects `told` each time.
  void ImportFailing(const test::FailingCalls::Failure& fail, const std::string& told) {
    const int failures = test::ExpectEachFailureIsTold(
        {host_, application_, desk_}, fail, [this] { return Import(path_.c_str(), &host_); }, 0,
        told);
    EXPECT_GT(failures, 20);
  }

  test::Desk desk_;
  test::TemporaryFolder folder_;
  test::HookedInterface host_{interface()};
  MessageSink sink_;
  ImportHTR importer_{options_, sink_, platform::ModuleHandle()};
  std::string path_;
};

TEST_F(ThrowingHostTest, TellsThatMemoryHasRunOut) {
  ImportFailing(test::RunOutOfMemory,
                "ImportHTR Error: There is not enough memory to import the file.");
}

TEST_F(ThrowingHostTest, TellsOfAnyOtherException) {
  ImportFailing(ThrowNumber, "ImportHTR Error: An unexpected error ended the import.");
}

TEST_F(ThrowingHostTest, WithoutANameOrAnInterfaceNothingIsDone) {
  EXPECT_EQ(Import(nullptr, &host_), 0);
  EXPECT_EQ(Import(path_.c_str(), nullptr), 0);
  EXPECT_EQ(Import(nullptr, nullptr), 0);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(scene().Animation().AnimateMode().SuspendDepth(), 0U);
}

TEST_F(ThrowingHostTest, ABoneThatThrowsIsDeleted) {
  test::ThrowingInstances throwing(interface());
  EXPECT_THROW((void)CreateBoneNode(throwing, "Hips", {1, 1}), std::bad_alloc);
  EXPECT_EQ(throwing.object.deletions, 1);
}

// As where the host refuses one.
TEST_F(ThrowingHostTest, ABoneThatThrowsTakesItsAncestorsWithIt) {
  HtrSegment& hips = Add("Hips");
  HtrSegment& spine = Add("Spine", &hips);
  Add("Head", &spine);
  int bones = 0;
  host_.before = [&bones](const std::string& operation) {
    if (operation == "CreateInstance" && ++bones == 3) ThrowNumber();
  };
  EXPECT_THROW((void)SkeletonCreator(host_, options_).Create(hips), int);
  EXPECT_EQ(test::ChildNames(scene().Root()), "");
}

}  // namespace
}  // namespace orvane
