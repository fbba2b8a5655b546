#include "formats/mnm/standard_markers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvane {
namespace {

struct Row {
  std::size_t step;
  std::string name;
  std::string description;
  bool may_be_skipped;
};

bool operator==(const Row& a, const Row& b) {
  return a.step == b.step && a.name == b.name && a.description == b.description &&
         a.may_be_skipped == b.may_be_skipped;
}

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.step << " " << row.name << " \"" << row.description << "\" " << row.may_be_skipped;
}

const std::vector<Row> kWithoutSticks = {
    {0, "LFHD", "Left front head marker (LFHD)", false},
    {1, "LBHD", "Left back head marker (LBHD)", false},
    {2, "RBHD", "Right back head marker (RBHD)", false},
    {3, "RFHD", "Right front head marker (RFHD)", false},
    {4, "C7", "Top of spine marker (C7)", false},
    {5, "CLAV", "Top chest marker (CLAV)", false},
    {6, "STRN", "Center sternum marker (STRN)", false},
    {7, "LSHO", "Left shoulder marker (LSHO)", false},
    {8, "LELB", "Left outer elbow marker (LELB)", false},
    {9, "LILB", "Left inner elbow marker (LILB)", true},
    {10, "LWRA", "Left wrist inner (near thumb) marker (LWRA)", false},
    {10, "LWRB", "Left wrist outer (near pinky) marker (LWRB)", false},
    {11, "LFIN", "Left hand marker (LFIN)", false},
    {12, "RSHO", "Right shoulder marker (RSHO)", false},
    {13, "RELB", "Right outer elbow marker (RELB)", false},
    {14, "RILB", "Right inner elbow marker (RILB)", true},
    {15, "RWRA", "Right wrist inner (near thumb) marker (RWRA)", false},
    {15, "RWRB", "Right wrist outer (near pinky) marker (RWRB)", false},
    {16, "RFIN", "Right hand marker (RFIN)", false},
    {17, "T10", "Middle of back marker (T10)", false},
    {18, "SACR", "Lower back marker (SACR)", true},
    {19, "LFWT", "Left front waist marker (LFWT)", false},
    {20, "LBWT", "Left back waist marker (LBWT)", false},
    {21, "RBWT", "Right back waist marker (RBWT)", false},
    {22, "RFWT", "Right front waist marker (RFWT)", false},
    {23, "LKNE", "Left outer knee marker (LKNE)", false},
    {24, "LKNI", "Left inner knee marker (LKNI)", true},
    {25, "LANK", "Left outer ankle marker (LANK)", false},
    {26, "LHEL", "Left heel marker (LHEL)", true},
    {27, "LMT5", "Left outer metatarsal marker (LMT5)", false},
    {28, "LMTI", "Left inner metatarsal marker (LMTI)", true},
    {29, "LTOE", "Left toe marker (LTOE)", false},
    {30, "RKNE", "Right outer knee marker (RKNE)", false},
    {31, "RKNI", "Right inner knee marker (RKNI)", true},
    {32, "RANK", "Right outer ankle marker (RANK)", false},
    {33, "RHEL", "Right heel marker (RHEL)", true},
    {34, "RMT5", "Right outer metatarsal marker (RMT5)", false},
    {35, "RMTI", "Right inner metatarsal marker (RMTI)", true},
    {36, "RTOE", "Right toe marker (RTOE)", false},
    {37, "LPRPB", "Left prop bottom (LPRPB)", true},
    {38, "LPRPM", "Left prop middle (LPRPM)", true},
    {39, "LPRPT", "Left prop top (LPRPT)", true},
    {40, "RPRPB", "Right prop bottom (RPRPB)", true},
    {41, "RPRPM", "Right prop middle (RPRPM)", true},
    {42, "RPRPT", "Right prop top (RPRPT)", true},
};

std::vector<Row> Asked(const WristSticks& sticks) {
  std::vector<Row> rows;
  for (std::size_t index = 0; index < kMarkerSteps; ++index) {
    const MarkerStep& step = MarkerStepAt(index, sticks);
    for (std::size_t i = 0; i < step.Count(); ++i) {
      const StandardMarker& marker = step.markers.at(i);
      rows.push_back(
          {index, std::string(marker.name), std::string(marker.description), step.may_be_skipped});
    }
  }
  return rows;
}

// What is asked with sticks: two rows in place of two others.
std::vector<Row> Expected(const WristSticks& sticks) {
  std::vector<Row> rows = kWithoutSticks;
  if (sticks.left) {
    rows.at(10) = {10, "LWRE", "Left wrist stick end marker (LWRE)", false};
    rows.at(11) = {10, "LWRI", "Left wrist stick base marker (LWRI)", false};
  }
  if (sticks.right) {
    rows.at(16) = {15, "RWRE", "Right wrist stick end marker (RWRE)", false};
    rows.at(17) = {15, "RWRI", "Right wrist stick base marker (RWRI)", false};
  }
  return rows;
}

TEST(StandardMarkers, AreAskedForInTheirOrder) {
  for (const bool left : {false, true}) {
    for (const bool right : {false, true}) {
      EXPECT_EQ(Asked({left, right}), Expected({left, right})) << left << right;
    }
  }
}

TEST(StandardMarkers, AreKnownByName) {
  for (const bool sticks : {false, true}) {
    for (const Row& row : Expected({sticks, sticks})) {
      EXPECT_TRUE(IsStandardMarker(row.name)) << row.name;
    }
  }
  for (const char* name : {"", "lfhd", "LFH", "LFHDX", "Head1"}) {
    EXPECT_FALSE(IsStandardMarker(name)) << name;
  }
}

TEST(StandardMarkers, AreKnownByWhatTheUserReads) {
  for (const bool sticks : {false, true}) {
    for (const Row& row : Expected({sticks, sticks})) {
      EXPECT_EQ(StandardNameOf(row.description), row.name);
    }
  }
  for (const char* description : {"", "LFHD", "Left front head marker", "Create a mapping"}) {
    EXPECT_EQ(StandardNameOf(description), "") << description;
  }
}

}  // namespace
}  // namespace orvane
