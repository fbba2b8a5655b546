#include "formats/trc/sample_block.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "formats/trc/document_checker.h"
#include "tests/formats/trc/samples.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

using test::Sample;
using test::SamplesOf;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// One column of samples for each marker.
using Columns = std::vector<std::vector<Sample>>;

Columns ColumnsOf(const TRCDocument& document) {
  Columns columns;
  for (const TRCMarker& marker : document.markers()) columns.push_back(SamplesOf(marker));
  return columns;
}

TRCDocument& WithMarkers(TRCDocument& document, std::size_t count) {
  for (std::size_t marker = 0; marker < count; ++marker) {
    document.AddMarker(TRCMarker("m" + std::to_string(marker)));
  }
  return document;
}

// Appends a frame of the first `width` markers to both, with a position in most of them.
void AppendFrame(std::size_t width, std::mt19937& random, TRCSampleBlock& block, Columns& columns) {
  std::vector<double> row;
  for (std::size_t marker = 0; marker < columns.size(); ++marker) {
    const double value = static_cast<double>(random() % 1000);
    const bool is_there = marker < width && random() % 8 != 0;
    columns[marker].push_back(is_there ? Sample({value, -value, value / 2}) : Sample());
    if (marker >= width) continue;
    if (is_there) {
      row.insert(row.end(), {value, -value, value / 2});
    } else {
      row.insert(row.end(), {kNaN, kNaN, kNaN});
    }
  }
  block.AppendRow(row);
}

void ExpectGaps(const TRCDocument& document) {
  const auto gaps = document.Gaps();
  ASSERT_EQ(gaps.size(), document.MarkerCount());
  for (std::size_t marker = 0; marker < gaps.size(); ++marker) {
    const auto alone = document.MarkerAt(marker)->Gaps();
    ASSERT_EQ(gaps[marker].size(), alone.size());
    for (std::size_t gap = 0; gap < alone.size(); ++gap) {
      EXPECT_EQ(gaps[marker][gap].begin, alone[gap].begin);
      EXPECT_EQ(gaps[marker][gap].end, alone[gap].end);
    }
  }
}

void ExpectVisits(const TRCDocument& document, const Columns& columns) {
  Columns visited;
  for (const auto& column : columns) visited.emplace_back(column.size());
  document.VisitPositions([&](std::size_t marker, std::size_t index, const double* position) {
    visited[marker][index] = {{position[0], position[1], position[2]}};
  });
  EXPECT_EQ(visited, columns);
}

// With more markers than a word has bits, too.
TEST(TRCSampleBlockTest, HoldsRowsOfAnyLength) {
  std::mt19937 random(7);
  for (const std::size_t markers : {1U, 2U, 5U, 64U, 130U}) {
    for (const bool is_ragged : {false, true}) {
      TRCDocument document;
      TRCSampleBlock& block = WithMarkers(document, markers).ShareBlock();
      Columns columns(markers);
      for (int frame = 0; frame < 2100; ++frame) {
        AppendFrame(is_ragged ? random() % (markers + 1) : markers, random, block, columns);
      }
      EXPECT_EQ(ColumnsOf(document), columns);
      ExpectGaps(document);
      ExpectVisits(document, columns);
      EXPECT_EQ(FindFault(document), "");
    }
  }
}

// Against plain lists, whatever is done to one marker or to all.
TEST(TRCSampleBlockTest, LetsMarkersPartAndMeetAgain) {
  std::mt19937 random(11);
  for (int round = 0; round < 100; ++round) {
    TRCDocument document;
    WithMarkers(document, 3);
    Columns columns(3);
    for (int step = 0; step < 30; ++step) {
      const std::size_t marker = random() % 3;
      const double value = step + 1;
      switch (random() % 5) {
        case 0:
          document.MarkerAt(marker)->AppendPosition(value, value, value);
          columns[marker].push_back({{value, value, value}});
          break;
        case 1:
          document.MarkerAt(marker)->AppendDropouts(2);
          columns[marker].insert(columns[marker].end(), 2, Sample());
          break;
        case 2: {
          const std::size_t index = random() % (columns[marker].size() + 1);
          const bool is_there = index < columns[marker].size();
          EXPECT_EQ(document.MarkerAt(marker)->SetSample(index, value, 0, 0), is_there);
          if (is_there) columns[marker][index] = {{value, 0, 0}};
          break;
        }
        default: {
          std::size_t rows = 0;
          for (const auto& column : columns) rows = std::max(rows, column.size());
          for (auto& column : columns) column.resize(rows);
          AppendFrame(random() % 4, random, document.ShareBlock(), columns);
        }
      }
      ASSERT_EQ(ColumnsOf(document), columns);
    }
    ExpectGaps(document);
    ExpectVisits(document, columns);
  }
}

TEST(TRCSampleBlockTest, KeepsWhatScalingMadeOfDropouts) {
  for (const bool scales_one : {false, true}) {
    TRCDocument document;
    WithMarkers(document, 2).ShareBlock().AppendRow(std::vector<double>{1, 2, 3, kNaN, kNaN, kNaN});
    document.ShareBlock().AppendRow(std::vector<double>{4, 5, 6});
    if (scales_one) {
      document.MarkerAt(0)->Scale(2);
      document.MarkerAt(1)->Scale(2);
    } else {
      document.Scale(2);
    }
    document.ShareBlock().AppendRow({});
    const Columns expected = {{{{2, 4, 6}}, {{8, 10, 12}}, {}}, {{{0, 0, 0}}, {{0, 0, 0}}, {}}};
    EXPECT_EQ(ColumnsOf(document), expected);
    EXPECT_EQ(document.MarkerAt(1)->Gaps().size(), 1U);
  }
}

// Four columns of these are as many samples as a number of this machine wraps to none.
TEST(TRCSampleBlockTest, RefusesMoreSamplesThanThereCanBe) {
  TRCDocument document;
  WithMarkers(document, 4);
  const std::size_t rows = std::numeric_limits<std::size_t>::max() / 4 + 1;
  document.MarkerAt(0)->AppendDropouts(rows);
  EXPECT_THROW(document.ShareBlock(), std::length_error);
  EXPECT_EQ(document.MarkerAt(0)->SampleCount(), rows);
  EXPECT_EQ(document.MarkerAt(1)->SampleCount(), 0U);
}

TEST(TRCSampleBlockTest, GivesACopyOfAMarkerSamplesOfItsOwn) {
  TRCDocument document;
  WithMarkers(document, 2).ShareBlock().AppendRow(std::vector<double>{1, 2, 3, 4, 5, 6});
  TRCMarker copy = *document.MarkerAt(1);
  ASSERT_TRUE(copy.SetSample(0, 7, 8, 9));
  EXPECT_EQ(SamplesOf(copy).front(), (Sample{{7, 8, 9}}));
  EXPECT_EQ(SamplesOf(*document.MarkerAt(1)).front(), (Sample{{4, 5, 6}}));
  copy = *document.MarkerAt(0);
  EXPECT_EQ(SamplesOf(copy).front(), (Sample{{1, 2, 3}}));
}

// A row of 130 samples, of which one in the middle is the last position, where rows end with those
// once there is a shorter one.
TEST(TRCSampleBlockTest, HoldsNoDropoutsBehindPositionsOnceARowIsShort) {
  for (const std::size_t last : {0U, 63U, 64U, 100U, 129U}) {
    TRCDocument document;
    TRCSampleBlock& block = WithMarkers(document, 130).ShareBlock();
    std::vector<double> row(std::size_t{3} * 130, kNaN);
    for (int row_number = 1; row_number <= 3; ++row_number) {
      for (std::size_t axis = 0; axis < 3; ++axis) row[3 * last + axis] = row_number;
      block.AppendRow(row);
      if (row_number < 3) continue;
      EXPECT_EQ(block.SampleCount(), 390U);
      block.AppendRow({});
      block.AppendRow(row);
      block.AppendRow(std::vector<double>{7, 8, 9, kNaN, kNaN, kNaN});
    }
    EXPECT_EQ(block.SampleCount(), 4 * (last + 1) + 1);
    std::vector<Sample> samples = {{{1, 1, 1}}, {{2, 2, 2}}, {{3, 3, 3}}, {}, {{3, 3, 3}}, {}};
    if (last == 0) samples.back() = {{7, 8, 9}};
    EXPECT_EQ(SamplesOf(*document.MarkerAt(last)), samples);
    ExpectGaps(document);
    EXPECT_EQ(FindFault(document), "");
  }
}

}  // namespace
}  // namespace orvane
