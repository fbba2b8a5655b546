#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "host/gltf/reader.h"
#include "tests/host/gltf/open_file.h"
#include "tests/host/gltf/sample_scenes.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

// Files that are damaged, and files that were made to do damage.

namespace test {
namespace {

using host::gltf::Container;
using nlohmann::json;
using testing::HasSubstr;

std::string Refusal(const std::string& bytes) {
  host::Scene scene;
  return host::gltf::ReadScene(bytes, scene);
}

std::string SmallFile() {
  host::Scene scene;
  host::Node& bone = AddBone(scene, nullptr, "Hips");
  AddSphere(scene, &bone, "ball", 2.0F);
  bone.SetUserPropertyFloat("length", 1.0F);
  bone.SetObjectOffset(Matrix3());
  for (const TimeValue tick : {0, 80}) {
    bone.Transform()->Position().SetKey(tick, {});
    bone.Transform()->Rotation().SetKey(tick, {});
  }
  scene.Select(bone);
  return Written(scene);
}

std::string Deep(int depth) {
  const auto count = static_cast<std::size_t>(depth);
  return std::string(count, '[') + std::string(count, ']');
}

// --- Files ---

TEST(DamagedFile, OfAnotherKindIsRefused) {
  for (const std::string bytes : {"", "[Header]", "{", "{\"asset\": {}", "\xFF\xFE"}) {
    EXPECT_EQ(Refusal(bytes), "The file is no glTF file, or it is damaged or cut short.");
  }
  EXPECT_EQ(Refusal("glTF" + Word(1) + Word(12)), "The file is no glTF 2.0 file.");
  EXPECT_EQ(Refusal("[]"), "The scene in the file is damaged: the file is no object.");
}

TEST(DamagedFile, WithoutOurExtensionIsRefused) {
  constexpr char kRefusal[] =
      "The file was not saved by this program, or another has saved it since: the extension "
      "ORVANE_scene is missing.";
  OpenFile file(SmallFile());
  file.document.erase("extensions");
  EXPECT_EQ(Refusal(file.Bytes()), kRefusal);
  EXPECT_EQ(Refusal("{\"asset\": {\"version\": \"2.0\"}}"), kRefusal);
}

TEST(DamagedFile, OfAnotherFormIsRefused) {
  for (const int version : {1, 4}) {
    OpenFile file(SmallFile());
    file.document["extensions"]["ORVANE_scene"]["version"] = version;
    EXPECT_EQ(
        Refusal(file.Bytes()),
        "The scene in the file is kept in form " + std::to_string(version) +
            ", and this program reads forms 2 to 3: read the file with the program that wrote it, "
            "or make it again.");
  }
}

TEST(DamagedFile, CutAtAnyByteIsRefused) {
  for (const Container container : {Container::kBinary, Container::kText}) {
    host::Scene scene;
    AddBone(scene, nullptr, "Hips").Transform()->Position().SetKey(0, {});
    std::string bytes = Written(scene, {container, ""});
    while (bytes.back() == '\n') bytes.pop_back();
    for (std::size_t size = 0; size < bytes.size(); ++size) {
      ASSERT_NE(Refusal(bytes.substr(0, size)), "") << size;
    }
    EXPECT_EQ(Refusal(bytes), "");
  }
}

TEST(DamagedFile, WithBytesBehindItsEndIsRefused) {
  EXPECT_EQ(Refusal(SmallFile()), "");
  for (const char* more : {"x", "four", "glTF"}) EXPECT_NE(Refusal(SmallFile() + more), "") << more;
}

TEST(DamagedFile, NestedMoreThanAHundredDeepIsRefused) {
  constexpr char kRefusal[] = "The file is nested more than 100 deep.";
  const OpenFile file(SmallFile());
  for (const int depth : {101, 1'000'000}) {
    EXPECT_EQ(Refusal(Deep(depth)), kRefusal);
    EXPECT_EQ(Refusal(OpenFile::Packed(Deep(depth), "")), kRefusal);
    EXPECT_EQ(Refusal(file.BytesWithKept(Deep(depth))), kRefusal);
  }
  EXPECT_NE(Refusal(Deep(100)), kRefusal);
  EXPECT_NE(Refusal("\"\\\"" + std::string(101, '[') + "\""), kRefusal);
}

TEST(DamagedFile, WithAnyByteChangedNeverCrashes) {
  for (const Container container : {Container::kBinary, Container::kText}) {
    host::Scene scene;
    AddBone(scene, nullptr, "Hips").Transform()->Rotation().SetKey(0, {});
    const std::string bytes = Written(scene, {container, ""});
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      for (const char byte : {'\0', '9', '"', '\xFF'}) {
        std::string changed = bytes;
        changed[i] = byte;
        Refusal(changed);
      }
    }
  }
}

// --- What is kept ---

struct Damage {
  const char* pointer;  // into what is kept
  json value;           // null: the member is taken away
  const char* refusal;  // behind "The scene in the file is damaged: "
};

class DamagedScene : public testing::TestWithParam<Damage> {};

TEST_P(DamagedScene, IsRefused) {
  OpenFile file(SmallFile());
  const json::json_pointer pointer(GetParam().pointer);
  if (GetParam().value.is_null()) {
    file.kept[pointer.parent_pointer()].erase(pointer.back());
  } else {
    file.kept[pointer] = GetParam().value;
  }
  EXPECT_EQ(Refusal(file.Bytes()),
            std::string("The scene in the file is damaged: ") + GetParam().refusal + ".");
}

INSTANTIATE_TEST_SUITE_P(
    InEveryWay, DamagedScene,
    testing::Values(
        Damage{"/frameRate", 0, "frameRate is no whole number from 1 to 4800"},
        Damage{"/frameRate", 4801, "frameRate is no whole number from 1 to 4800"},
        Damage{"/frameRate", 59.94, "frameRate is no whole number from 1 to 4800"},
        Damage{"/frameRate", nullptr, "frameRate is missing"},
        Damage{"/range", json::array({1}), "range is no pair of numbers"},
        Damage{"/range/0", "1", "range[0] is no number"},
        Damage{"/time", 2147483648, "time is no whole number from -2147483648 to 2147483647"},
        Damage{"/millimetersPerUnit", 0, "millimetersPerUnit is not positive"},
        Damage{"/millimetersPerUnit", -1, "millimetersPerUnit is not positive"},
        Damage{"/animateMode/on", 1, "animateMode.on is neither true nor false"},
        Damage{"/animateMode/remembered", 1, "animateMode.remembered is no array"},
        Damage{"/setKeyMode/unmatchedResumes", -1,
               "setKeyMode.unmatchedResumes is no whole number from 0 to 9007199254740992"},
        Damage{"/selection/0", 2, "selection[0] is no whole number from 0 to 1"},
        Damage{"/selection/0", -1, "selection[0] is no whole number from 0 to 1"},
        Damage{"/root", 1, "root is no object"}, Damage{"/nodes/0", 1, "nodes[0] is no object"},
        Damage{"/nodes/0/parent", 0, "nodes[0].parent is no whole number from -1 to -1"},
        Damage{"/nodes/0/parent", 1, "nodes[0].parent is no whole number from -1 to -1"},
        Damage{"/nodes/1/parent", 1, "nodes[1].parent is no whole number from -1 to 0"},
        Damage{"/nodes/1/parent", -2, "nodes[1].parent is no whole number from -1 to 0"},
        Damage{"/nodes/0/name", 1, "nodes[0].name is no text"},
        Damage{"/nodes/0/name", std::string("a\0b", 3),
               "nodes[0].name is a text with a zero byte in it"},
        Damage{"/nodes/0/nameBytes", "4", "nodes[0].nameBytes is no bytes in hexadecimal"},
        Damage{"/nodes/0/nameBytes", "4G", "nodes[0].nameBytes is no bytes in hexadecimal"},
        Damage{"/nodes/0/nameBytes", "00", "nodes[0].nameBytes is a text with a zero byte in it"},
        Damage{"/nodes/0/color", -1, "nodes[0].color is no whole number from 0 to 4294967295"},
        Damage{"/nodes/0/boneSince", 0.5,
               "nodes[0].boneSince is no whole number from -2147483648 to 2147483647"},
        Damage{"/nodes/0/objectOffset", json::array(),
               "nodes[0].objectOffset is no list of 12 numbers"},
        Damage{"/nodes/0/properties/0/value", 1e39, "nodes[0].properties[0].value is too large"},
        Damage{"/nodes/0/object/class", json::array({1, 2}),
               "nodes[0].object is of no class that nodes can show"},
        Damage{"/nodes/0/object/superClass", 0x900C,
               "nodes[0].object is of no class that nodes can show"},
        Damage{"/nodes/0/object/parameters", json::array({1, 2}),
               "nodes[0].object.parameters is not what objects of this class have"},
        Damage{"/nodes/1/object/parameters/1", 0.5,
               "nodes[1].object.parameters is not what objects of this class have"},
        Damage{"/nodes/1/object/parameters/0", 1e39,
               "nodes[1].object.parameters is not what objects of this class have"},
        Damage{"/nodes/0/transformClass/1", 4294967296,
               "nodes[0].transformClass[1] is no whole number from 0 to 4294967295"},
        Damage{"/nodes/0/rotation/kind", "bezier",
               "nodes[0].rotation.kind is neither euler nor tcb"},
        Damage{"/nodes/0/position/ticks", nullptr, "nodes[0].position.ticks is missing"},
        Damage{"/nodes/0/position/ticks", 3,
               "nodes[0].position.ticks is no whole number from 0 to 2"},
        Damage{"/nodes/0/position/ticks", -1,
               "nodes[0].position.ticks is no whole number from 0 to 2"},
        Damage{"/nodes/0/position/ticks", 1,
               "nodes[0].position.ticks is the index of fewer ticks than there are keys"},
        Damage{"/nodes/0/position/keys", 3, "nodes[0].position.keys is more than the file holds"},
        Damage{"/nodes/0/rotation/keys", 3, "nodes[0].rotation.keys is more than the file holds"},
        Damage{"/nodes/0/scale/keys", 1, "nodes[0].scale.keys is more than the file holds"},
        Damage{"/nodes/0/position/keys", -1,
               "nodes[0].position.keys is no whole number from 0 to 2147483647"},
        Damage{"/nodes/0/position/keys", 0.5,
               "nodes[0].position.keys is no whole number from 0 to 2147483647"},
        Damage{"/nodes/0/scale/constant", json::array({1, 1}),
               "nodes[0].scale.constant is no list of 3 numbers"}),
    [](const auto& damage) { return "Number" + std::to_string(damage.index); });

// --- Indices and numbers ---

class DamagedNumbers : public testing::Test {
 protected:
  // One of "ticks", "vectors", "rotations" and "angles".
  json& AccessorOf(const char* numbers) {
    return file_.document["accessors"][file_.Extension()[numbers].get<std::size_t>()];
  }

  json& ViewOf(const json& accessor) {
    return file_.document["bufferViews"][accessor["bufferView"].get<std::size_t>()];
  }

  // Puts `bytes` in the place of the first numbers.
  void Overwrite(const char* numbers, const std::string& bytes) {
    const json& accessor = AccessorOf(numbers);
    const std::size_t offset =
        ViewOf(accessor).value("byteOffset", 0U) + accessor.value("byteOffset", 0U);
    file_.binary.replace(offset, bytes.size(), bytes);
  }

  std::string Fault() const {
    const std::string refusal = Refusal(file_.Bytes());
    const std::string start = "The scene in the file is damaged: ";
    EXPECT_EQ(refusal.substr(0, start.size()), start);
    return refusal.substr(std::min(start.size(), refusal.size()));
  }

  OpenFile file_{SmallFile()};
};

TEST_F(DamagedNumbers, IndicesOutOfRangeAreRefused) {
  for (const json& index : {json(-1), json(1'000'000), json(0.5), json("1"), json(1e300)}) {
    for (const char* numbers : {"ticks", "vectors", "rotations", "angles"}) {
      file_ = OpenFile(SmallFile());
      file_.Extension()[numbers] = index;
      EXPECT_THAT(Fault(),
                  HasSubstr(std::string("extensions.ORVANE_scene.") + numbers + " is no "));
    }
    file_ = OpenFile(SmallFile());
    AccessorOf("ticks")["bufferView"] = index;
    EXPECT_THAT(Fault(), HasSubstr(".bufferView is no "));
  }
}

TEST_F(DamagedNumbers, CountsAndPlacesOutsideTheDataAreRefused) {
  for (const json& extent : {json(-1), json(1'000'000), json(4294967296), json(1e300)}) {
    for (const char* member : {"count", "byteOffset"}) {
      file_ = OpenFile(SmallFile());
      AccessorOf("vectors")[member] = extent;
      EXPECT_THAT(Fault(), HasSubstr(std::string(member) + " is no whole number from 0 to "));
    }
    for (const char* member : {"byteLength", "byteOffset"}) {
      file_ = OpenFile(SmallFile());
      ViewOf(AccessorOf("vectors"))[member] = extent;
      EXPECT_THAT(Fault(), HasSubstr(std::string(member) + " is no whole number from 0 to "));
    }
  }
}

TEST_F(DamagedNumbers, OfAnotherKindAreRefused) {
  AccessorOf("vectors")["componentType"] = 5125;
  EXPECT_THAT(Fault(), HasSubstr("componentType is no whole number from 5126 to 5126"));
  file_ = OpenFile(SmallFile());
  AccessorOf("rotations")["type"] = "VEC3";
  EXPECT_THAT(Fault(), HasSubstr("type is not VEC4"));
}

TEST_F(DamagedNumbers, FewerThanKeysAreRefused) {
  AccessorOf("ticks")["count"] = 1;
  EXPECT_EQ(Fault(), "nodes[0].position.ticks is the index of fewer ticks than there are keys.");
  for (const char* numbers : {"rotations", "angles"}) {
    file_ = OpenFile(SmallFile());
    AccessorOf(numbers)["count"] = 1;
    EXPECT_EQ(Fault(), "nodes[0].rotation.keys is more than the file holds.") << numbers;
    file_ = OpenFile(SmallFile());
    file_.Extension().erase(numbers);
    EXPECT_EQ(Fault(), "nodes[0].rotation.keys is more than the file holds.") << numbers;
  }
}

TEST_F(DamagedNumbers, TicksThatDoNotRiseAreRefused) {
  for (const std::string& ticks : {Word(80) + Word(80), Word(80) + Word(0)}) {
    Overwrite("ticks", ticks);
    EXPECT_EQ(Fault(), "nodes[0].position.ticks is the index of ticks that do not rise.");
  }
}

TEST_F(DamagedNumbers, ThatAreNotFiniteAreRefused) {
  constexpr char kFault[] = " is the number of keys that are not all finite.";
  Overwrite("vectors", Word(0x7F800000));
  EXPECT_EQ(Fault(), std::string("nodes[0].position.keys") + kFault);
  file_ = OpenFile(SmallFile());
  Overwrite("rotations", Word(0x7F800000));
  EXPECT_EQ(Fault(), std::string("nodes[0].rotation.keys") + kFault);
  file_ = OpenFile(SmallFile());
  Overwrite("angles", Word(0) + Word(0x7FF00000));
  EXPECT_EQ(Fault(), std::string("nodes[0].rotation.keys") + kFault);
}

// A small file could ask for any amount of memory if the same keys could be used by every node.
TEST_F(DamagedNumbers, MoreThanTheFileHoldsAreRefused) {
  host::Scene scene;
  host::Node& node = AddDummy(scene, nullptr, "node");
  for (int tick = 0; tick < 10'000; ++tick) node.Transform()->Scale().SetKey(tick, {});
  file_ = OpenFile(Written(scene));
  for (int i = 0; i < 100; ++i) file_.kept["nodes"].push_back(file_.kept["nodes"][0]);
  EXPECT_EQ(Fault(), "nodes[1].scale.keys is more than the file holds.");
}

TEST_F(DamagedNumbers, TextThatIsNoBase64IsRefused) {
  host::Scene scene;
  const std::string text = Written(scene, {Container::kText, ""});
  for (const char* data : {"A", "AAA", "AA=A", "A*AA", "=AAA"}) {
    json document = json::parse(text);
    document["buffers"][0]["uri"] = std::string("data:application/octet-stream;base64,") + data;
    EXPECT_EQ(Refusal(document.dump()),
              "The scene in the file is damaged: buffers[0].uri is damaged or cut short.");
  }
  json document = json::parse(text);
  document["buffers"][0]["uri"] = "scene.bin";
  EXPECT_EQ(Refusal(document.dump()),
            "The data of the file is in another one, \"scene.bin\": save it as one file, .glb, or "
            "with the data embedded.");
}

}  // namespace
}  // namespace test
