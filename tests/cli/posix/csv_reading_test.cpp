#include <gmock/gmock.h>

#include "formats/text/numbers.h"
#include "formats/trc/document.h"
#include "tests/cli/orvane_test.h"

// Tables that were made of the examples, read by a program that is not ours.

namespace {

using test::ProgramResult;

class CsvReadingTest : public test::OrvaneTest {
 protected:
  ProgramResult Python(const std::string& script) const {
    test::ProgramRun run;
    run.command = {"/usr/bin/python3", "-B", "-c", script};
    run.folder = folder_.Path();
    return RunProgram(run);
  }
};

// Every position in full, by column, and a gap where there is none.
std::string NumbersOf(const orvane::TRCDocument& document) {
  std::string code = "wanted = {";
  for (const orvane::TRCMarker& marker : document.markers()) {
    code += "'" + marker.Name() + "': [";
    for (std::size_t frame = 0; frame < marker.SampleCount(); ++frame) {
      double x = 0;
      double y = 0;
      double z = 0;
      const bool is_seen = marker.GetSample(frame, x, y, z);
      code += is_seen ? "(" + orvane::FormatShortest(x) + "," + orvane::FormatShortest(y) + "," +
                            orvane::FormatShortest(z) + "),"
                      : "None,";
    }
    code += "],";
  }
  return code + "}\n";
}

TEST_F(CsvReadingTest, ByPandasGivesEveryNumberAndGap) {
  if (Python("import pandas").status != 0) GTEST_SKIP() << "pandas is not installed";
  const std::string source = ORVANE_SOURCE_DIR "/examples/walk.trc";
  orvane::TRCDocument document;
  ASSERT_EQ(document.ReadBytes(test::ReadFile(source), false), "");
  ASSERT_EQ(Orvane({"rewrite", source, "-o", "wide.csv", "--quiet"}).status, 0);
  ASSERT_EQ(Orvane({"rewrite", source, "-o", "long.csv", "--quiet", "--layout", "long"}).status, 0);
  const ProgramResult result = Python(
      "import pandas\n" + NumbersOf(document) +
      "def read(name):\n"
      "  return pandas.read_csv(name, skiprows=[1], float_precision='round_trip')\n"
      "def told(rows, x, y, z):\n"
      "  return [None if a != a else (a, b, c) for a, b, c in zip(rows[x], rows[y], rows[z])]\n"
      "wide = read('wide.csv')\n"
      "long = read('long.csv')\n"
      "for name, samples in wanted.items():\n"
      "  assert told(wide, name + '.x', name + '.y', name + '.z') == samples, name\n"
      "  assert told(long[long.marker == name], 'x', 'y', 'z') == samples, name\n"
      "print(len(wide), len(long))\n");
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.output, "120 4920\n");
}

}  // namespace
