#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "host/gltf/reader.h"
#include "tests/host/gltf/open_file.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

// What is kept of a recording and of its gaps, damaged or made to do damage.

namespace test {
namespace {

using nlohmann::json;

std::string RecordedFile() {
  host::Scene scene;
  scene.SetRecording(host::Recording{host::Rate{2997, 50}, 1, "mm", "walk.trc", false});
  AddSphere(scene, nullptr, "marker", 1.0F)
      .SetMeasurement(host::Measured{true, host::GapManner::kHold, {{0, 80}, {160, 160}}});
  return Written(scene);
}

struct Damage {
  const char* pointer;  // into what is kept
  json value;           // null: the member is taken away
  const char* refusal;  // behind "The scene in the file is damaged: "
};

class DamagedRecording : public testing::TestWithParam<Damage> {};

TEST_P(DamagedRecording, IsRefused) {
  OpenFile file(RecordedFile());
  const json::json_pointer pointer(GetParam().pointer);
  if (GetParam().value.is_null()) {
    file.kept[pointer.parent_pointer()].erase(pointer.back());
  } else {
    file.kept[pointer] = GetParam().value;
  }
  host::Scene scene;
  EXPECT_EQ(host::gltf::ReadScene(file.Bytes(), scene),
            std::string("The scene in the file is damaged: ") + GetParam().refusal + ".");
}

constexpr char kNoGaps[] = "nodes[0].measurement.gaps is a list of gaps that are not in order";
constexpr char kNoTerms[] = "recording.rate is no fraction in lowest terms";

const Damage kDamages[] = {
    {"/recording", 1, "recording is no object"},
    {"/recording/rate", 60, "recording.rate is no array"},
    {"/recording/rate", json::array({60}), "recording.rate is no pair of numbers"},
    {"/recording/rate", {120, 2}, kNoTerms},
    {"/recording/rate/0", 0, "recording.rate[0] is no whole number from 1 to 9007199254740992"},
    {"/recording/rate/1", -1, "recording.rate[1] is no whole number from 1 to 9007199254740992"},
    {"/recording/rate/0", 1e300, "recording.rate[0] is no whole number from 1 to 9007199254740992"},
    {"/recording/rate/0", 59.94, "recording.rate[0] is no whole number from 1 to 9007199254740992"},
    {"/recording/firstFrame", nullptr, "recording.firstFrame is missing"},
    {"/recording/firstFrame", 1e10,
     "recording.firstFrame is no whole number from -2147483648 to 2147483647"},
    {"/recording/unit", 1, "recording.unit is no text"},
    {"/recording/source", std::string("a\0b", 3),
     "recording.source is a text with a zero byte in it"},
    {"/recording/turnedUp", "yes", "recording.turnedUp is neither true nor false"},
    {"/nodes/0/measurement", json::array(), "nodes[0].measurement is no object"},
    {"/nodes/0/measurement/madeByImport", nullptr, "nodes[0].measurement.madeByImport is missing"},
    {"/nodes/0/measurement/manner", "show",
     "nodes[0].measurement.manner is neither hide nor hold nor origin"},
    {"/nodes/0/measurement/gaps", {0, 80, 160}, "nodes[0].measurement.gaps is no list of pairs"},
    {"/nodes/0/measurement/gaps", {80, 0}, kNoGaps},
    {"/nodes/0/measurement/gaps", {0, 80, 80, 160}, kNoGaps},
    {"/nodes/0/measurement/gaps", {160, 240, 0, 80}, kNoGaps},
    {"/nodes/0/measurement/gaps/1", 4294967296,
     "nodes[0].measurement.gaps[1] is no whole number from -2147483648 to 2147483647"},
};

INSTANTIATE_TEST_SUITE_P(InAnyOfItsMembers, DamagedRecording, testing::ValuesIn(kDamages));

}  // namespace
}  // namespace test
