#include "tests/cli/orvane_test.h"
#include "tests/support/replaced_text.h"
#include "tests/support/trc_text.h"

namespace {

using test::CodesIn;
using test::ProgramResult;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class RewriteCsvTest : public test::OrvaneTest {
 protected:
  RewriteCsvTest() {
    test::TrcText text;
    text.markers = {"A", "b c"};
    text.data_rate = "59.94";
    text.frames = {{"1\t2\t3.5", ""}, {"4\t5\t6", "7\t8\t9"}};
    Write("take.trc", text.Text());
    Write("take.htr", test::SmallMotion());
  }
};

TEST_F(RewriteCsvTest, MakesTablesOfMarkers) {
  EXPECT_EQ(Orvane({"rewrite", "take.trc", "-o", "wide.csv"}).status, 0);
  EXPECT_EQ(Read("wide.csv"),
            "frame,time,A.x,A.y,A.z,b c.x,b c.y,b c.z\r\n,s,mm,mm,mm,mm,mm,mm\r\n"
            "1,0.000000,1,2,3.5,,,\r\n2,0.016683,4,5,6,7,8,9\r\n");
  test::ProgramRun run =
      Command({"rewrite", "take.trc", "-o", "-", "--to", "csv", "--layout", "long", "--quiet"});
  run.writes_bytes = true;
  EXPECT_EQ(RunProgram(run).output,
            "frame,time,marker,x,y,z\r\n,s,,mm,mm,mm\r\n1,0.000000,A,1,2,3.5\r\n"
            "1,0.000000,b c,,,\r\n2,0.016683,A,4,5,6\r\n2,0.016683,b c,7,8,9\r\n");
}

TEST_F(RewriteCsvTest, MakesTablesOfMotionAndTellsWhatTheyDoNotHold) {
  Write("take.htr", test::Replaced(test::SmallMotion(), "2 10 0 0 0 0 90 1", "2 10 0 0 0 0 90 2"));
  const ProgramResult world = Orvane({"rewrite", "take.htr", "-o", "w.csv", "--decimals", "1"});
  EXPECT_EQ(world.status, 0);
  EXPECT_THAT(CodesIn(world.error), ElementsAre("rewrite-scale-lost", "rewrite-skeleton-lost"));
  EXPECT_THAT(Read("w.csv"), StartsWith("frame,time,Hips.x,Hips.y,Hips.z,Hips.rx,"));
  EXPECT_THAT(
      Read("w.csv"),
      HasSubstr("\r\n2,0.016667,10.0,900.0,0.0,0.0,0.0,90.0,-90.0,900.0,0.0,0.0,0.0,90.0\r\n"));
  Orvane({"rewrite", "take.htr", "-o", "l.csv", "--space", "local", "--rotations", "quaternion",
          "--decimals", "1"});
  EXPECT_THAT(Read("l.csv"),
              HasSubstr("\r\n2,0.016667,10.0,900.0,0.0,0.0,0.0,0.7,0.7,0.0,100.0,0.0,"
                        "0.0,0.0,0.0,1.0\r\n"));
}

TEST_F(RewriteCsvTest, TakesItsFlagsForTablesAlone) {
  const ProgramResult result = Orvane({"rewrite", "take.htr", "-o", "n.htr", "--layout", "long"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, HasSubstr("orvane: --layout: is for CSV files\n"));
}

}  // namespace
