#include <gtest/gtest.h>

#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

struct NameCase {
  const char* bytes;
  const char* shown;
};

// What a viewer shows for names of any bytes; \xEF\xBF\xBD is the replacement character.
constexpr NameCase kNames[] = {
    {"Hips", "Hips"},
    {"\x01 \"\\/\x7F", "\x01 \"\\/\x7F"},
    {"\xC3\xA4", "\xC3\xA4"},
    {"\xE6\xAD\xA9", "\xE6\xAD\xA9"},
    {"\xF0\x9F\xA6\xB4", "\xF0\x9F\xA6\xB4"},
    {"\xEE\x80\x80\xEF\xBF\xBF", "\xEE\x80\x80\xEF\xBF\xBF"},
    {"\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"},
    {"caf\xE9", "caf\xEF\xBF\xBD"},
    {"\xE9t\xE9", "\xEF\xBF\xBDt\xEF\xBF\xBD"},
    {"\x80", "\xEF\xBF\xBD"},    // nothing to continue
    {"\xC3", "\xEF\xBF\xBD"},    // ends too early
    {"\xC3(", "\xEF\xBF\xBD("},  // goes on wrongly
    {"\xE6\xAD", "\xEF\xBF\xBD\xEF\xBF\xBD"},
    {"\xE6\xAD(", "\xEF\xBF\xBD\xEF\xBF\xBD("},
    {"\xC0\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD"},                  // long form of '/'
    {"\xE0\x80\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},  // likewise
    {"\xF0\x80\x80\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
    {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},                  // surrogate
    {"\xF4\x90\x80\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},  // past the last
    {"\xF5\xFE\xFF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
};

TEST(GltfNames, OfNodesAreAlwaysValidText) {
  for (const NameCase& name : kNames) {
    host::Scene scene;
    AddDummy(scene, nullptr, name.bytes);
    EXPECT_EQ(Viewer(Written(scene)).File().nodes[0].name, name.shown);
  }
}

TEST(GltfNames, OfTheSceneAndItsAnimationAreThatOfTheFile) {
  host::Scene scene;
  AddDummy(scene, nullptr, "node").Transform()->Position().SetKey(0, {});
  const Viewer viewer(Written(scene, {host::gltf::Container::kBinary, "walk \xFF"}));
  EXPECT_EQ(viewer.File().scenes[0].name, "walk \xEF\xBF\xBD");
  EXPECT_EQ(viewer.File().animations.at(0).name, "walk \xEF\xBF\xBD");
}

TEST(GltfNames, AreDoneWithout) {
  host::Scene scene;
  AddBone(scene, nullptr, "").Transform()->Position().SetKey(0, {});
  const Viewer viewer(Written(scene, {}));
  EXPECT_EQ(viewer.File().nodes[0].name, "");
  EXPECT_EQ(viewer.File().animations.at(0).name, "");
}

}  // namespace
}  // namespace test
