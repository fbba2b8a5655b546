#include "formats/trc/cut_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "formats/text/files.h"
#include "formats/trc/document.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::CutTrcFrames;
using orvane::TRCDocument;
using orvane::TRCMarker;
using test::TrcText;

const std::string kHeadings = "Frame#\tTime\ta\t\t\t\n\t\tX1\tY1\tZ1\n";

// Three frames from number 11 on.
std::string Eleven(const std::string& end, const std::string& blank) {
  return "PathFileType\t4\t(X/Y/Z)\ta.trc" + end + "names" + end + "60\t60\t3\t1\tcm\t60\t11\t3" +
         end + "Frame#\tTime\ta\t\t\t" + end + "\t\tX1\tY1\tZ1" + end + blank +
         "11\t0\t1.50\t2\t3" + end + "12\t0\t\t\t" + end + "13\t0\t7\t8\t9" + end;
}

// The numbers of the frames from `begin` up to `end`, and of the header but for their count.
struct Read {
  std::vector<std::int64_t> header;
  std::vector<std::string> names;
  std::vector<std::vector<double>> samples;  // by marker; 4 numbers a frame

  bool operator==(const Read&) const = default;
};

Read ReadFrames(const TRCDocument& document, std::size_t begin, std::size_t end) {
  Read read;
  read.header = {document.Units(), document.DataRate(), document.CameraRate(),
                 document.FirstFrame() + static_cast<std::int64_t>(begin)};
  for (const TRCMarker& marker : document.markers()) {
    read.names.push_back(marker.Name());
    std::vector<double> numbers;
    for (std::size_t frame = begin; frame < end; ++frame) {
      double x = 0;
      double y = 0;
      double z = 0;
      const bool is_there = marker.GetSample(frame, x, y, z);
      numbers.insert(numbers.end(), {is_there ? 1.0 : 0.0, x, y, z});
    }
    read.samples.push_back(std::move(numbers));
  }
  return read;
}

std::size_t FramesIn(const TRCDocument& document) {
  return document.MarkerCount() == 0 ? 0 : document.MarkerAt(0)->SampleCount();
}

void ExpectSameFrames(const std::string& bytes, const TRCDocument& whole, std::size_t begin,
                      std::size_t end) {
  const std::optional<std::string> cut = CutTrcFrames(bytes, begin, end);
  ASSERT_TRUE(cut) << begin << " to " << end;
  TRCDocument document;
  ASSERT_EQ(document.ReadBytes(*cut, false), "");
  EXPECT_EQ(FramesIn(document), end - begin);
  EXPECT_EQ(document.NumFrames(), static_cast<std::int32_t>(end - begin));
  EXPECT_EQ(ReadFrames(document, 0, end - begin), ReadFrames(whole, begin, end)) << *cut;
}

void ExpectSameFramesInEveryRange(const std::string& bytes, std::size_t frames) {
  SCOPED_TRACE(bytes);
  TRCDocument whole;
  ASSERT_EQ(whole.ReadBytes(bytes, false), "");
  ASSERT_EQ(FramesIn(whole), frames);
  for (std::size_t begin = 0; begin < frames; ++begin) {
    for (std::size_t end = begin + 1; end <= frames; ++end) {
      ExpectSameFrames(bytes, whole, begin, end);
    }
  }
}

TEST(CutTrcText, HasTheLinesOfTheFramesAsTheyStand) {
  for (const std::string end : {"\n", "\r\n", "\r\r\n"}) {
    for (const std::string& blank : {std::string(), end}) {
      const std::string header = "PathFileType\t4\t(X/Y/Z)\ta.trc" + end + "names" + end;
      const std::string headings = end + "Frame#\tTime\ta\t\t\t" + end + "\t\tX1\tY1\tZ1" + end;
      EXPECT_EQ(CutTrcFrames(Eleven(end, blank), 1, 3), header + "60\t60\t2\t1\tcm\t60\t12\t2" +
                                                            headings + blank + "12\t0\t\t\t" + end +
                                                            "13\t0\t7\t8\t9" + end);
      EXPECT_EQ(
          CutTrcFrames(Eleven(end, blank), 0, 1),
          header + "60\t60\t1\t1\tcm\t60\t11\t1" + headings + blank + "11\t0\t1.50\t2\t3" + end);
      EXPECT_EQ(CutTrcFrames(Eleven(end, blank), 0, 3), Eleven(end, blank));
    }
  }
}

TEST(CutTrcText, TellsTheFirstFrameWhereTheReaderLooks) {
  struct Row {
    std::string path_type;
    std::string values;
    std::string second;  // the number of the second frame
    std::string cut_path_type;
    std::string cut_values;
  };
  const std::vector<Row> rows = {
      {"4", "60\t60\t2\t1\tmm\t60\t5\t2", "9", "4", "60\t60\t1\t1\tmm\t60\t6\t1"},
      {"4", "60\t60\t2\t1\tmm\t60\t-5", "9", "4", "60\t60\t1\t1\tmm\t60\t-4"},
      {"4", "60\t60\t2\t1\tcm", "9", "4", "60\t60\t1\t1\tcm \t\t1"},
      {"4", "60\t60", "9", "4", "60\t60\t1\t\t\t\t1"},
      {"3", "60\t60\t2\t1\tmm\t60\t5\t2", "8", "3", "60\t60\t1\t1\tmm\t60\t8\t1"},
      {"3", "60\t60\t2\t1\tmm\t60", "8", "3", "60\t60\t1\t1\tmm\t60"},
      {"3", "60\t60\t2\t1\tmm\t60", "9", "4", "60\t60\t1\t1\tmm\t60\t8"},
      {"5", "60\t60\t2\t1\tmm\t60\t5", "6", "4", "60\t60\t1\t1\tmm\t60\t2"},
      {"", "60\t60\t2\t1\tmm\t60\t5", "6", "4", "60\t60\t1\t1\tmm\t60\t2"},
  };
  for (const Row& row : rows) {
    const auto text = [&](const std::string& path_type, const std::string& values) {
      return "PathFileType\t" + path_type + "\t(X/Y/Z)\ta.trc\nnames\n" + values + "\n" +
             kHeadings + "\n";
    };
    const std::string second = row.second + "\t0\t4\t5\t6\n";
    const std::string whole = text(row.path_type, row.values) + "7\t0\t1\t2\t3\n" + second;
    EXPECT_EQ(CutTrcFrames(whole, 1, 2), text(row.cut_path_type, row.cut_values) + second);
    ExpectSameFramesInEveryRange(whole, 2);
  }
}

TEST(CutTrcText, IsReadAsThoseFramesOfOddFiles) {
  const std::string header =
      "PathFileType\t4\t(X/Y/Z)\ta.trc\nnames\n60\t60\t3\t1\tcm\t60\t11\t3\n";
  const std::string nul(1, '\0');
  const std::vector<std::string> rows = {
      "\n1\t0\t1\t2\t3\n2\t0\t4\t5\t6\n3\t0\t7\t8\t9",
      "\n1\t0\t1\t2\t3\r\n2\t0\t4\t5\t6\n3\t0\t7\t8\t9\r",
      "1\t0\t1\t2\t3\n\n3\t0\t7\t8\t9\n",
      "1\t0\t1\t2\t3\n\r\n3\t0\t7\t8\t9\n",
      "\n\n2\t0\t4\t5\t6\n\n",
      "\n1\t0\t1\t2\t3\n# no comment\n2\t0\t4\t5\t6\n3\t0\t7\t8\t9\n",
      "# 1\t0\t1\t2\t3\nthrown away\n2\t0\t4\t5\t6\n# at the end",
      "\n1\t0\t1\t2\t3" + nul + "\t4\n" + nul + "\nthrown away\n3\t0\t7\t8\t9\n",
      "\n1\t0\n2\n3\t0\t7\n",
  };
  for (const std::string& frames : rows)
    ExpectSameFramesInEveryRange(header + kHeadings + frames, 3);
}

TEST(CutTrcText, CountsTheFramesThatAreThere) {
  for (const int announced : {0, 1, 2, 3, 900}) {
    const TrcText text{.markers = {"a"},
                       .frames = {{"1\t2\t3"}, {"4\t5\t6"}, {""}},
                       .first_frame = 228,
                       .frame_count = announced};
    ExpectSameFramesInEveryRange(text.Text(), 3);
  }
}

TEST(CutTrcText, IsNoneWhereLinesAreReadInPieces) {
  const TrcText text{.markers = {"a"}, .frames = {{"1\t2\t" + std::string(10'300, '3')}}};
  EXPECT_EQ(CutTrcFrames(text.Text(), 0, 1), std::nullopt) << "two frames";
  ExpectSameFramesInEveryRange(
      TrcText{.markers = {"a"}, .frames = {{"1\t2\t3"}}, .units = std::string(9'000, 'u')}.Text(),
      1);
  const TrcText values{
      .markers = {"a"}, .frames = {{"1\t2\t3"}}, .units = std::string(10'300, 'u')};
  EXPECT_EQ(CutTrcFrames(values.Text(), 0, 1), std::nullopt);
}

TEST(CutTrcText, IsReadAsThoseFramesOfRecordings) {
  const char* folder = std::getenv("ORVANE_RECORDINGS");
  const std::filesystem::path source = ORVANE_SOURCE_DIR;
  std::vector<std::filesystem::path> files = {source / "examples/walk.trc"};
  const std::filesystem::path recordings = folder != nullptr ? folder : source / "../shared/data";
  std::error_code error;  // they may not be there
  for (const auto& entry : std::filesystem::directory_iterator(recordings, error)) {
    if (entry.path().extension() == ".trc") files.push_back(entry.path());
  }
  for (const std::filesystem::path& file : files) {
    SCOPED_TRACE(file);
    const std::string bytes = orvane::ReadFileBytes(file.string()).value_or("");
    TRCDocument whole;
    ASSERT_EQ(whole.ReadBytes(bytes, false), "");
    const std::size_t frames = FramesIn(whole);
    ASSERT_GT(frames, 0U);
    ExpectSameFrames(bytes, whole, 0, frames);
    ExpectSameFrames(bytes, whole, frames / 2, frames);
    ExpectSameFrames(bytes, whole, frames / 3, std::max(frames / 3 + 1, 2 * frames / 3));
  }
}

}  // namespace
