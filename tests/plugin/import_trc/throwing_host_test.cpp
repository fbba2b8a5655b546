#include <gtest/gtest.h>

#include "host/application/application.h"
#include "platform/module.h"
#include "plugin/import_trc/import_trc.h"
#include "plugin/import_trc/marker_nodes.h"
#include "tests/support/failing_file_class.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/throwing_instances.h"
#include "tests/support/trc_text.h"

// The importer of marker files in a host whose calls throw.

namespace orvane {
namespace {

class ThrowingHostTest : public testing::Test {
 protected:
  void SetUp() override {
    const test::TrcText file{.markers = {"LFHD", "RFHD"},
                             .frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}}};
    path_ = folder_.Write("walk.trc", file.Text());
    options_.rootNode = true;
  }

  void TearDown() override {
    EXPECT_EQ(application_.scene().Misuse().Messages(), std::vector<std::string>());
    EXPECT_EQ(application_.scene().LooseInstances(), 0U);
  }

  int Import(const char* path, Interface* host) {
    return importer_.DoImport(path, nullptr, host, 1);
  }

  // Imports with every call failing in turn, and expects `told` each time.
  void ImportFailing(const test::FailingCalls::Failure& fail, const std::string& told) {
    const int failures = test::ExpectEachFailureIsTold(
        {host_, application_, desk_}, fail, [this] { return Import(path_.c_str(), &host_); }, 1,
        told);
    EXPECT_GT(failures, 15);
  }

  test::Desk desk_;
  host::Application application_;
  test::TemporaryFolder folder_;
  test::HookedInterface host_{application_.plugin_interface()};
  MessageSink sink_;
  ImportTRCOptions options_;
  ImportTRC importer_{options_, sink_, platform::ModuleHandle()};
  std::string path_;
};

TEST_F(ThrowingHostTest, TellsThatMemoryHasRunOut) {
  ImportFailing(test::RunOutOfMemory,
                "ImportTRC Error: There is not enough memory to import the file.");
}

TEST_F(ThrowingHostTest, TellsOfAnyOtherException) {
  ImportFailing(test::ThrowNumber, "ImportTRC Error: An unexpected error ended the import.");
}

TEST_F(ThrowingHostTest, WithoutANameOrAnInterfaceNothingIsDone) {
  EXPECT_EQ(Import(nullptr, &host_), 0);
  EXPECT_EQ(Import(path_.c_str(), nullptr), 0);
  EXPECT_EQ(Import(nullptr, nullptr), 0);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(application_.scene().Animation().AnimateMode().SuspendDepth(), 0U);
}

TEST_F(ThrowingHostTest, ASphereThatThrowsIsDeleted) {
  test::ThrowingInstances throwing(application_.plugin_interface());
  EXPECT_THROW((void)CreateMarkerNode(throwing, options_, "LFHD"), std::bad_alloc);
  EXPECT_EQ(throwing.object.deletions, 1);
}

}  // namespace
}  // namespace orvane
