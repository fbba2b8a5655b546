#include <gtest/gtest.h>

#include <filesystem>

#include "platform/module.h"
#include "plugin/export_htr/export_htr.h"
#include "tests/plugin/export_htr/sampling_fixture.h"
#include "tests/support/failing_file_class.h"
#include "tests/support/temporary_folder.h"

// The exporter of motion files in a host whose calls throw.

namespace orvane {
namespace {

class ThrowingHostTest : public test::SamplingTest {
 protected:
  void SetUp() override {
    host::Node& hips = AddBone("Hips");
    AddBone("Leg", &hips);
    scene().Select(hips);
    path_ = folder_.File("walk.htr");
    options_.savedPose = false;
  }

  int Export(const char* path, Interface* host) {
    return exporter_.DoExport(path, nullptr, host, 1, 0);
  }

  // Exports with every call failing in turn, and expects `told` each time.
  void ExportFailing(const test::FailingCalls::Failure& fail, const std::string& told) {
    const int failures = test::ExpectEachFailureIsTold(
        {host_, application_, desk_}, fail, [this] { return Export(path_.c_str(), &host_); }, 0,
        told);
    EXPECT_GT(failures, 8);
  }

  test::TemporaryFolder folder_;
  test::HookedInterface host_{interface()};
  ExportHTR exporter_{options_, sink_, platform::ModuleHandle()};
  std::string path_;
};

TEST_F(ThrowingHostTest, TellsThatMemoryHasRunOut) {
  ExportFailing(test::RunOutOfMemory,
                "ExportHTR Error: There is not enough memory to export the skeleton.");
}

TEST_F(ThrowingHostTest, TellsOfAnyOtherException) {
  ExportFailing(test::ThrowNumber, "ExportHTR Error: An unexpected error ended the export.");
}

TEST_F(ThrowingHostTest, WithoutANameOrAnInterfaceNothingIsDone) {
  EXPECT_EQ(Export(nullptr, &host_), 0);
  EXPECT_EQ(Export(path_.c_str(), nullptr), 0);
  EXPECT_EQ(Export(nullptr, nullptr), 0);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_EQ(scene().Animation().AnimateMode().SuspendDepth(), 0U);
}

}  // namespace
}  // namespace orvane
