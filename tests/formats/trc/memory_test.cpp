#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <new>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "formats/trc/document_checker.h"
#include "tests/formats/trc/samples.h"
#include "tests/support/failing_memory.h"
#include "tests/support/trc_text.h"

// Marker files that are read while memory runs out, at any moment.
namespace orvane {
namespace {

using test::Sample;
using test::SampleAt;

constexpr std::size_t kMarkers = 3;

// Whole lines, then blank and short ones among them, more than were announced.
std::string LinesOfAllKinds() {
  test::TrcText text;
  for (std::size_t marker = 0; marker < kMarkers; ++marker) {
    text.markers.push_back("a name that is long enough for a block " + std::to_string(marker));
  }
  text.frame_count = 5;
  std::string bytes = text.Text();
  const std::string whole = "\t\t1\t2\t3\t\t\t\t7\t8\t9\n";
  for (int line = 0; line < 700; ++line) bytes += whole;
  for (int line = 0; line < 700; ++line) bytes += "\n\t\t4\t5\t6\n" + whole;
  return bytes;
}

// Those of the rows that `whole` has too, and of what is appended behind them.
void ExpectBeginningOf(const TRCDocument& whole, TRCDocument& document) {
  EXPECT_EQ(FindFault(document), "");
  const std::size_t rows = document.MarkerAt(0)->SampleCount();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  document.ShareBlock().AppendRow(std::vector<double>(3 * kMarkers, nan));
  document.ShareBlock().AppendRow(std::vector<double>{1, 2, 3});
  for (std::size_t marker = 0; marker < kMarkers; ++marker) {
    const TRCMarker& samples = *document.MarkerAt(marker);
    ASSERT_EQ(samples.SampleCount(), rows + 2);
    std::size_t same = 0;
    while (same < rows && SampleAt(samples, same) == SampleAt(*whole.MarkerAt(marker), same)) {
      ++same;
    }
    EXPECT_EQ(same, rows);
    EXPECT_EQ(SampleAt(samples, rows), std::nullopt);
    EXPECT_EQ(SampleAt(samples, rows + 1), marker == 0 ? Sample({1, 2, 3}) : std::nullopt);
  }
}

TEST(TRCMemoryTest, HoldsWhatWasReadWhenMemoryRunsOut) {
  const std::string bytes = LinesOfAllKinds();
  TRCDocument whole;
  ASSERT_EQ(whole.ReadBytes(bytes, false), "");
  bool has_failed = true;
  std::size_t partly_read = 0;
  for (int count = 0; has_failed; ++count) {
    SCOPED_TRACE(count);
    TRCDocument document;
    test::FailAllocationAfter(count);
    const std::string message = document.ReadBytes(bytes, false);
    has_failed = test::StopFailingAllocations();
    if (document.MarkerCount() < kMarkers) {
      EXPECT_EQ(message, "vector<T> too long");
      continue;
    }
    const bool is_whole = document.MarkerAt(0)->SampleCount() == whole.MarkerAt(0)->SampleCount();
    EXPECT_EQ(message, is_whole ? "" : "vector<T> too long");
    partly_read += document.MarkerAt(0)->SampleCount() > 0 ? 1 : 0;
    ExpectBeginningOf(whole, document);
  }
  EXPECT_GT(partly_read, 5U);
}

TEST(TRCMemoryTest, SetsASampleOrChangesNothingWhenMemoryRunsOut) {
  bool has_failed = true;
  for (int count = 0; has_failed; ++count) {
    SCOPED_TRACE(count);
    TRCMarker marker("M");
    for (int sample = 1; sample <= 64; ++sample) marker.AppendPosition(sample, 0, 0);
    marker.AppendDropouts(2);
    test::FailAllocationAfter(count);
    bool is_set = false;
    try {
      is_set = marker.SetSample(65, 65, 0, 0);
    } catch (const std::bad_alloc&) {
    }
    has_failed = test::StopFailingAllocations();
    EXPECT_EQ(is_set, !has_failed);
    EXPECT_EQ(marker.SampleCount(), 66U);
    marker.AppendPosition(67, 0, 0);
    for (std::size_t index = 0; index < 67; ++index) {
      const bool is_dropout = index == 64 || (index == 65 && has_failed);
      const double x = static_cast<double>(index) + (index == 65 ? 0 : 1);
      EXPECT_EQ(SampleAt(marker, index), is_dropout ? std::nullopt : Sample({x, 0, 0}));
    }
  }
}

TEST(TRCMemoryTest, AddsAMarkerOrChangesNothingWhenMemoryRunsOut) {
  TRCDocument document;
  for (unsigned marker = 0; marker < 100; ++marker) {
    const TRCMarker added("a name that is long enough for a block " + std::to_string(marker));
    bool has_failed = true;
    for (int count = 0; has_failed; ++count) {
      SCOPED_TRACE(count);
      test::FailAllocationAfter(count);
      try {
        static_cast<void>(document.AddMarker(added));
      } catch (const std::bad_alloc&) {
      }
      has_failed = test::StopFailingAllocations();
      EXPECT_EQ(document.MarkerCount(), has_failed ? marker : marker + 1);
    }
    EXPECT_EQ(document.AddMarker(added), nullptr);
  }
}

struct FileForm {
  const char* name;
  std::size_t markers;
  std::string line;   // which is repeated
  std::size_t count;  // of these
};

class TRCFileSizeTest : public testing::TestWithParam<FileForm> {};

// Eight bytes for each of the file, and 64 KiB a marker: while it is read, and for what stays.
TEST_P(TRCFileSizeTest, LimitsTheMemoryOfItsSamples) {
  const std::size_t markers = GetParam().markers;
  for (const int announced : {0, 1, static_cast<int>(GetParam().count), 1'000'000'000}) {
    SCOPED_TRACE(announced);
    test::TrcText text;
    text.frame_count = announced;
    for (std::size_t marker = 0; marker < markers; ++marker) {
      text.markers.push_back(std::to_string(marker));
    }
    std::string bytes = text.Text();
    for (std::size_t line = 0; line < GetParam().count; ++line) bytes += GetParam().line;
    // The whole row that shows whether room was made for all of the others.
    bytes += "1\t0";
    for (std::size_t marker = 0; marker < markers; ++marker) bytes += "\t1\t1\t1";
    TRCDocument document;
    static_cast<void>(test::TakePeakOfBytes());
    ASSERT_EQ(document.ReadBytes(bytes, false), "");
    const std::size_t peak = test::TakePeakOfBytes();
    ASSERT_EQ(document.MarkerCount(), markers);
    EXPECT_LE(peak, 8 * bytes.size() + 65'536 * markers);
    EXPECT_LE(document.ShareBlock().Bytes(), 8 * bytes.size() + 65'536 * markers);
    const TRCMarker& last = document.markers().back();
    EXPECT_NE(SampleAt(last, last.SampleCount() - 1), std::nullopt);
    EXPECT_EQ(FindFault(document), "");
  }
}

std::string Dropouts(std::size_t markers) { return std::string(3 * markers - 1, '\t') + "\n"; }

INSTANTIATE_TEST_SUITE_P(
    Forms, TRCFileSizeTest,
    testing::Values(FileForm{"EmptyRows", 1414, "\n", 1'000'000},
                    FileForm{"EmptyAndShortRows", 1414, "\n\t\t1\n", 200'000},
                    FileForm{"ShortRows", 1414, "\t\t1\n", 200'000},
                    FileForm{"EmptyAndWholeRows", 1, "\n\t\t1\n", 200'000},
                    FileForm{"WholeRows", 1, "\t\t1\n", 200'000},
                    FileForm{"EmptyRowsBetweenDropouts", 1, Dropouts(1) + Dropouts(1) + "\n",
                             300'000},
                    FileForm{"ShortRowsOfDropouts", 2, Dropouts(1), 600'000},
                    FileForm{"EmptyRowsBetweenPairs", 2, Dropouts(2) + "\n", 300'000},
                    FileForm{"LateValues", 30, std::string(89, '\t') + "1\n", 60'000},
                    FileForm{"LateValuesOfMany", 300, std::string(899, '\t') + "1\n", 6'000},
                    FileForm{"TabsAlone", 30, std::string(91, '\t') + "\n", 66'500},
                    FileForm{"Halves", 30, std::string(45, '\t') + "1\n", 100'000}),
    [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace orvane
