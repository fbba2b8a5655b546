#include "tests/cli/orvane_test.h"

// Being asked to terminate, by a module of the tests at a known moment, is being interrupted.

namespace {

using test::ProgramResult;

class TerminateTest : public test::OrvaneTest {
 protected:
  void ExpectNothingWritten(const std::vector<std::string>& arguments) const {
    std::vector<std::string> all = arguments;
    all.insert(all.end(), {"--module", test::HurriedModule()});
    const std::vector<std::string> before = Names();
    const ProgramResult result = Orvane(all);
    EXPECT_EQ(result.status, 130);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "orvane: interrupted; nothing was written\n");
    EXPECT_EQ(Names(), before);
  }
};

TEST_F(TerminateTest, EndsAnImport) {
  Write("terminate.htr", test::SmallMotion());
  ExpectNothingWritten({"import", "terminate.htr", "-o", "scene.glb"});
}

TEST_F(TerminateTest, EndsAnExport) {
  Write("walk.htr", test::SmallMotion());
  ASSERT_EQ(Orvane({"import", "walk.htr", "-o", "scene.glb"}).status, 0);
  ExpectNothingWritten({"export", "scene.glb", "--select", "Hips", "-o", "terminate.htr"});
}

}  // namespace
