#include "formats/c3d/writer.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace {

using orvane::C3dOptions;
using orvane::C3dPlan;
using orvane::PlanC3d;
using orvane::TRCDocument;
using orvane::TRCMarker;

std::string BytesOf(const C3dPlan& plan) {
  std::string bytes;
  orvane::PrintC3d(plan, [&bytes](std::string_view piece) { bytes += piece; });
  return bytes;
}

std::string BytesOf(const TRCDocument& document, const C3dOptions& options = {}) {
  return BytesOf(PlanC3d(document, options));
}

template <std::size_t size>
std::string Literal(const char (&bytes)[size]) {
  return {bytes, size - 1};
}

std::string Word(unsigned int value) {
  return {static_cast<char>(value % 256), static_cast<char>(value / 256)};
}

std::string Filled(std::string bytes, std::size_t size) {
  bytes.resize(size);
  return bytes;
}

// A group or a parameter; `body` is all behind the way to the next one.
std::string Record(int id, const std::string& name, const std::string& body) {
  return std::string{static_cast<char>(name.size()), static_cast<char>(id)} + name +
         Word(static_cast<unsigned int>(body.size()) + 2) + body;
}

std::string Text(const std::string& text) { return static_cast<char>(text.size()) + text; }

unsigned int WordAt(const std::string& bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes.at(at)) +
         256U * static_cast<unsigned char>(bytes.at(at + 1));
}

// Where the data of a parameter begin.
std::size_t DataOf(const std::string& bytes, const std::string& name, std::size_t dimensions) {
  return bytes.find(name) + name.size() + 4 + dimensions;
}

// A marker that is measured in the first frame and not in the second.
void FillOneMarker(TRCDocument& document) {
  TRCMarker* head = document.AddMarker(TRCMarker("Head"));
  head->AppendPosition(1, -2, 0.5);
  head->AppendDropout();
  document.SetNumFrames(2);
}

TEST(C3dWriterTest, WritesAllOfAFile) {
  TRCDocument document;
  FillOneMarker(document);
  const std::string header =
      Filled(Literal("\x02\x50\x01\x00\x00\x00\x01\x00\x02\x00\x00\x00\x00\x00\x80\xBF"
                     "\x04\x00\x00\x00\x00\x00\x70\x42"),
             298) +
      Literal("\x39\x30");
  const std::string points =
      Record(-1, "POINT", Text("Markers")) +
      Record(1, "USED", Literal("\x02\x00\x01\x00") + Text("Number of markers")) +
      Record(1, "SCALE",
             Literal("\x04\x00\x00\x00\x80\xBF") + Text("Negative: coordinates are real numbers")) +
      Record(1, "RATE", Literal("\x04\x00\x00\x00\x70\x42") + Text("Frames a second")) +
      Record(1, "DATA_START", Literal("\x02\x00\x04\x00") + Text("Block of the first frame")) +
      Record(1, "FRAMES", Literal("\x02\x00\x02\x00") + Text("Number of frames, 65535 at most")) +
      Record(1, "LABELS", Literal("\xFF\x02\x04\x01Head") + Text("Names of markers")) +
      Record(1, "DESCRIPTIONS", Literal("\xFF\x02\x01\x01 ") + Text("")) +
      Record(1, "UNITS", Literal("\xFF\x01\x02mm") + Text("Unit of lengths")) +
      Record(1, "X_SCREEN", Literal("\xFF\x01\x02+X") + Text("Axis that points to the right")) +
      Record(1, "Y_SCREEN", Literal("\xFF\x01\x02+Y") + Text("Axis that points up"));
  const std::string others =
      Record(-2, "ANALOG", Text("")) +
      Record(2, "USED", Literal("\x02\x00\x00\x00") + Text("Number of analog channels")) +
      Record(-3, "FORCE_PLATFORM", Text("")) +
      Record(3, "USED", Literal("\x02\x00\x00\x00") + Text("Number of force platforms")) +
      Record(-4, "TRIAL", Text("The recording")) +
      Record(4, "ACTUAL_START_FIELD",
             Literal("\x02\x01\x02\x01\x00\x00\x00") +
                 Text("Number of the first frame, low word and high word")) +
      Record(4, "ACTUAL_END_FIELD",
             Literal("\x02\x01\x02\x02\x00\x00\x00") +
                 Text("Number of the last frame, low word and high word")) +
      Record(-5, "ORVANE", Text("What single precision has no room for"));
  // The last record tells of none behind it.
  const std::string last = Literal(
                               "\x04\x05RATE\x00\x00\xFF\x01\x02"
                               "60") +
                           Text("Frames a second, exactly");
  const std::string parameters = Literal("\x01\x50\x02\x54") + points + others + last;
  const std::string frames =
      Literal("\x00\x00\x80\x3F\x00\x00\x00\xC0\x00\x00\x00\x3F\x00\x00\x00\x00") +
      Literal("\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x80\xBF");
  EXPECT_EQ(BytesOf(document),
            Filled(header, 512) + Filled(parameters, 1024) + Filled(frames, 512));
}

TEST(C3dWriterTest, TellsTheRateExactlyAsText) {
  TRCDocument document;
  FillOneMarker(document);
  C3dOptions options;
  options.rate = C3dOptions::Rate{60000.0 / 1001.0, "60000/1001"};
  const std::string bytes = BytesOf(document, options);
  EXPECT_NE(bytes.find(Literal("\xFF\x01\x0A"
                               "60000/1001")),
            std::string::npos);
  // 59.9400599... in single precision, in the header and as a parameter.
  EXPECT_EQ(bytes.substr(20, 4), Literal("\x9F\xC2\x6F\x42"));
  EXPECT_NE(bytes.find(Literal("\x04\x00\x9F\xC2\x6F\x42")), std::string::npos);
}

TEST(C3dWriterTest, TellsUnitAndVerticalAxis) {
  TRCDocument document;
  FillOneMarker(document);
  document.SetUnits(2);
  C3dOptions options;
  options.vertical_axis = 2;
  const std::string bytes = BytesOf(document, options);
  EXPECT_EQ(bytes.substr(DataOf(bytes, "UNITS", 1), 1), "m");
  EXPECT_EQ(bytes.substr(DataOf(bytes, "Y_SCREEN", 1), 2), "+Z");
}

TEST(C3dWriterTest, KeepsTheFirstFramesNumber) {
  TRCDocument document;
  FillOneMarker(document);
  document.SetFirstFrame(228);
  const std::string bytes = BytesOf(document);
  EXPECT_EQ(WordAt(bytes, 6), 228U);
  EXPECT_EQ(WordAt(bytes, 8), 229U);
  EXPECT_EQ(WordAt(bytes, DataOf(bytes, "ACTUAL_START_FIELD", 1)), 228U);
  EXPECT_EQ(WordAt(bytes, DataOf(bytes, "ACTUAL_END_FIELD", 1)), 229U);
}

TEST(C3dWriterTest, NumbersBeyondTheHeaderStandInParameters) {
  TRCDocument document;
  FillOneMarker(document);
  document.SetFirstFrame(0x12345);
  const std::string bytes = BytesOf(document);
  EXPECT_EQ(WordAt(bytes, 6), 1U);  // so that their number is right
  EXPECT_EQ(WordAt(bytes, 8), 2U);
  EXPECT_EQ(WordAt(bytes, DataOf(bytes, "ACTUAL_START_FIELD", 1)), 0x2345U);
  EXPECT_EQ(WordAt(bytes, DataOf(bytes, "ACTUAL_START_FIELD", 1) + 2), 1U);
  EXPECT_EQ(WordAt(bytes, DataOf(bytes, "ACTUAL_END_FIELD", 1)), 0x2346U);
}

TEST(C3dWriterTest, MoreFramesThanTheHeaderCountsStandInParameters) {
  constexpr int kFrames = 70'000;
  TRCDocument document;
  TRCMarker* head = document.AddMarker(TRCMarker("Head"));
  for (int frame = 0; frame < kFrames; ++frame) head->AppendPosition(frame, 0, 0);
  const std::string bytes = BytesOf(document);
  EXPECT_EQ(WordAt(bytes, 6), 1U);
  EXPECT_EQ(WordAt(bytes, 8), 65'535U);
  // 70,000 in single precision.
  EXPECT_EQ(bytes.substr(DataOf(bytes, "LONG_FRAMES", 0), 4), Literal("\x00\xB8\x88\x47"));
  EXPECT_EQ(WordAt(bytes, DataOf(bytes,
                                 "\x01"
                                 "FRAMES",
                                 0)),
            65'535U);
  EXPECT_EQ(WordAt(bytes, DataOf(bytes, "ACTUAL_END_FIELD", 1)), 70'000U - 65'536U);
  EXPECT_EQ(WordAt(bytes, DataOf(bytes, "ACTUAL_END_FIELD", 1) + 2), 1U);
  const std::size_t data = std::size_t{512} * (WordAt(bytes, 16) - 1);
  // 69,999 in single precision.
  EXPECT_EQ(bytes.substr(data + 16 * (kFrames - 1), 4), Literal("\x80\xB7\x88\x47"));
  EXPECT_EQ(bytes.size(), data + 16 * kFrames);
}

// Readers take 65535 for no number.
TEST(C3dWriterTest, FramesAreCountedTwiceFrom65535On) {
  for (const int count : {65'534, 65'535}) {
    TRCDocument document;
    TRCMarker* head = document.AddMarker(TRCMarker("Head"));
    for (int frame = 0; frame < count; ++frame) head->AppendPosition(0, 0, 0);
    const std::string bytes = BytesOf(document);
    EXPECT_EQ(WordAt(bytes, 8), static_cast<unsigned int>(count));
    EXPECT_EQ(bytes.find("LONG_FRAMES") != std::string::npos, count == 65'535);
    // The same readers would take what fills a block up for frames.
    EXPECT_EQ(bytes.size() % 512, count == 65'535 ? 496U : 0U);
  }
}

TEST(C3dWriterTest, WhatAMarkerHasNoSampleForIsAGap) {
  TRCDocument document;
  document.AddMarker(TRCMarker("A"))->AppendPosition(1, 1, 1);
  TRCMarker* other = document.AddMarker(TRCMarker("B"));
  other->AppendPosition(1, 1, 1);
  other->AppendPosition(1, 1, 1);
  const std::string bytes = BytesOf(document);
  const std::size_t data = std::size_t{512} * (WordAt(bytes, 16) - 1);
  EXPECT_EQ(bytes.substr(data + 2 * 16, 16), std::string(14, '\0') + "\x80\xBF");
  EXPECT_EQ(bytes.substr(data + 3 * 16 + 12, 4), std::string(4, '\0'));
}

TEST(C3dWriterTest, LabelsBeyond255GoOnInAnotherParameter) {
  TRCDocument document;
  for (int marker = 0; marker < 256; ++marker) {
    document.AddMarker(TRCMarker("M" + std::to_string(1000 + marker)));
  }
  const std::string bytes = BytesOf(document);
  const std::size_t labels = DataOf(bytes, "LABELS", 2);
  EXPECT_EQ(bytes.substr(labels - 2, 7), Literal("\x05\xFFM1000"));
  const std::size_t more = DataOf(bytes, "LABELS2", 2);
  EXPECT_EQ(bytes.substr(more - 2, 7), Literal("\x05\x01M1255"));
  EXPECT_EQ(WordAt(bytes, 2), 256U);
}

TEST(C3dWriterTest, LabelsArePaddedToTheLongest) {
  TRCDocument document;
  document.AddMarker(TRCMarker("A"));
  document.AddMarker(TRCMarker("Long name"));
  const std::string bytes = BytesOf(document);
  EXPECT_EQ(bytes.substr(DataOf(bytes, "LABELS", 2), 18), "A        Long name");
}

TEST(C3dWriterTest, LeavesOutDisabledMarkers) {
  TRCDocument document;
  document.AddMarker(TRCMarker("A"))->AppendPosition(1, 1, 1);
  document.AddMarker(TRCMarker("B"))->AppendPosition(1, 1, 1);
  document.MarkerAt(0)->SetEnabled(false);
  const std::string bytes = BytesOf(document);
  EXPECT_EQ(WordAt(bytes, 2), 1U);
  EXPECT_EQ(bytes.substr(DataOf(bytes, "LABELS", 2), 1), "B");
}

TEST(C3dWriterTest, NoMarkersAndNoFramesAreAFileToo) {
  TRCDocument document;
  const std::string bytes = BytesOf(document);
  EXPECT_EQ(WordAt(bytes, 2), 0U);
  EXPECT_EQ(WordAt(bytes, 6), 1U);
  EXPECT_EQ(WordAt(bytes, 8), 0U);
  EXPECT_EQ(bytes.size(), 512U * (WordAt(bytes, 16) - 1));
}

}  // namespace
