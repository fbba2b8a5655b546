#include "tests/host/gltf/sample_scenes.h"

#include <utility>
#include <vector>

#include "sdk/core/object.h"
#include "sdk/paramblk2/parameter_block.h"
#include "tests/host/gltf/test_scene.h"

namespace test {

namespace {

void BuildNothing(host::Scene& /*scene*/) {}

void BuildOneDummy(host::Scene& scene) { AddDummy(scene, nullptr, "Alone"); }

void BuildOneBone(host::Scene& scene) { AddBone(scene, nullptr, "Alone"); }

// A group over a chain of bones with two ends, all of it animated at every frame.
void BuildSkeleton(host::Scene& scene) {
  host::Node& group = AddDummy(scene, nullptr, "group");
  host::Node& hips = AddBone(scene, &group, "Hips", {120.0F, 24.0F, 24.0F});
  host::Node& chest = AddBone(scene, &hips, "Chest", {300.0F, 60.0F, 40.0F});
  host::Node& arm = AddBone(scene, &chest, "Arm", {250.0F, 50.0F, 50.0F});
  AddBone(scene, &arm, "Arm_Effector", {50.0F, 50.0F, 50.0F})
      .Transform()
      ->Position()
      .SetConstant({250.0F, 0.0F, 0.0F});
  hips.Transform()->Position().SetConstant({0.0F, 0.0F, 950.0F});
  chest.Transform()->Position().SetConstant({120.0F, 0.0F, 0.0F});
  arm.Transform()->Position().SetConstant({300.0F, 30.0F, -10.0F});
  UseTcbRotation(scene, arm);
  for (int frame = 0; frame < 30; ++frame) {
    const TimeValue tick = frame * 160;
    hips.Transform()->Position().SetKey(tick, {5.0F * static_cast<float>(frame), 1.0F, 950.0F});
    hips.Transform()->Rotation().SetKey(tick, TurnAbout(2, 3.0 * frame));
    chest.Transform()->Rotation().SetKey(tick, TurnAbout(1, 20.0 * frame));
    arm.Transform()->Rotation().SetKey(tick, TurnAbout(0, -40.0 * frame));
  }
}

// Every kind of object, in colours, units and places of their own.
void BuildEveryKind(host::Scene& scene) {
  scene.SetMillimetersPerUnit(25.4);
  host::Node& dummy = AddDummy(scene, nullptr, "dummy");
  host::Node& bone = AddBone(scene, &dummy, "bone", {4.0F, 1.0F, 1.0F});
  host::Node& sphere = AddSphere(scene, &bone, "sphere", 0.5F);
  host::Node& point = AddPoint(scene, &sphere, "point");
  bone.SetWireColor(PackWireColor(204, 51, 51));
  sphere.SetWireColor(PackWireColor(0, 255, 0));
  point.SetWireColor(PackWireColor(255, 255, 255));
  point.Transform()->Scale().SetConstant({0.25F, 0.25F, 0.25F});
  sphere.Transform()->Position().SetConstant({1.0F, 2.0F, 3.0F});
  dummy.Transform()->Rotation().SetConstant(TurnAbout(0, 30.0));
}

// Bones below parents that are scaled, mirrored and flattened; scale keys.
void BuildScaled(host::Scene& scene) {
  host::Node& group = AddDummy(scene, nullptr, "scaled");
  group.Transform()->Scale().SetConstant({2.0F, 0.5F, 3.0F});
  host::Node& turned = AddBone(scene, &group, "turned");
  turned.Transform()->Rotation().SetConstant(TurnAbout(2, 30.0));
  host::Node& mirrored = AddBone(scene, &turned, "mirrored");
  mirrored.Transform()->Scale().SetConstant({-1.0F, -1.0F, -1.0F});
  host::Node& flat = AddBone(scene, &turned, "flat");
  flat.Transform()->Scale().SetConstant({1.0F, 0.0F, 1.0F});
  AddBone(scene, &flat, "below flat");
  host::Node& growing = AddBone(scene, &turned, "growing");
  growing.Transform()->Scale().SetKey(0, {0.0F, 0.0F, 0.0F});
  growing.Transform()->Scale().SetKey(4800, {1.0F, 2.0F, 1.0F});
}

// Skeletons side by side, bones of several colours, bones without length and without width.
void BuildSeveralTrees(host::Scene& scene) {
  for (const char* name : {"first", "second"}) {
    host::Node& top = AddBone(scene, nullptr, name);
    AddBone(scene, &top, "child", {0.0F, 0.0F, 0.0F}).SetWireColor(PackWireColor(255, 0, 0));
    AddBone(scene, &top, "thin", {50.0F, 0.0F, 0.0F}).SetWireColor(PackWireColor(0, 0, 255));
    AddBone(scene, &top, "backwards", {-50.0F, 5.0F, 5.0F});
  }
}

// Keys before zero, past half an hour, and so late and so close that single precision cannot tell
// their seconds apart.
void BuildWideTimes(host::Scene& scene) {
  host::Node& node = AddBone(scene, nullptr, "late");
  for (const TimeValue tick : {-4800, 0, 8'640'001, 8'640'002, 30'000'000, 30'000'001, 30'000'002,
                               2'147'483'646, 2'147'483'647}) {
    node.Transform()->Position().SetKey(tick, {static_cast<float>(tick), 0.0F, 0.0F});
    node.Transform()->Rotation().SetKey(tick, TurnAbout(0, tick % 360));
  }
  AddDummy(scene, nullptr, "one key").Transform()->Position().SetKey(0, {1.0F, 2.0F, 3.0F});
}

void BuildStrangeNames(host::Scene& scene) {
  AddBone(scene, nullptr, "\xFF\xFE latin \xE4\xF6\xFC");
  AddDummy(scene, nullptr, "");
  AddDummy(scene, nullptr, "\x01\x1F \"quoted\" \\ /");
  AddSphere(scene, nullptr, "\xE6\xAD\xA9\xE3\x81\x8F", 10.0F);
}

// Every byte that a text of the host may have.
std::string EveryByte() {
  std::string text;
  for (int byte = 1; byte < 256; ++byte) text += static_cast<char>(byte);
  return text;
}

// Keys of every controller of `node`, which stands about `place` and stays within a few units of
// it: before zero, past half an hour, and closer than single precision can tell.
void MoveAbout(host::Node& node, const Point3& place) {
  float shift = 0.0F;
  for (const TimeValue tick : {-2'147'483'647, -4800, -5, 8'640'001, 30'000'000, 30'000'001}) {
    shift += 0.1F;
    node.Transform()->Position().SetKey(tick, {place.x + shift, place.y, place.z - shift});
    node.Transform()->Rotation().SetKey(tick, TurnAbout(tick & 1, tick % 60));
    node.Transform()->Scale().SetKey(tick, {1.0F, 1.0F + shift, 1.0F});
  }
}

void SetUpTime(host::AnimationState& animation) {
  animation.SetFrameRate(59);
  animation.SetRange({-81, 30'000'001});
  animation.SetTime(-7);
  for (const bool on : {true, false, true}) {
    animation.AnimateMode().Set(on);
    animation.AnimateMode().Suspend();
  }
  animation.SetKeyMode().Resume();
  animation.SetKeyMode().Set(true);
}

// A bone, a sphere, a dummy and a point, moving, below `parent`. Returns the bone.
host::Node& AddEveryKind(host::Scene& scene, host::Node* parent, const char* name, bool tcb) {
  host::Node& bone = AddBone(scene, parent, name, {4.0F, 1.0F, 0.7F});
  host::Node& sphere = AddSphere(scene, &bone, name, 0.5F);
  host::Node& dummy = AddDummy(scene, &bone, name);
  host::Node& point = AddPoint(scene, &dummy, name);
  Point3 place(0.0F, tcb ? -5.0F : 0.0F, 0.0F);
  for (host::Node* node : {&bone, &sphere, &dummy, &point}) {
    if (tcb) UseTcbRotation(scene, *node);
    MoveAbout(*node, place);
    place = {2.0F, 1.0F, 2.0F};
  }
  return bone;
}

// Everything about a scene that is not as it was at first: every object with every controller.
void BuildEverything(host::Scene& scene) {
  scene.SetMillimetersPerUnit(25.4);
  SetUpTime(scene.Animation());
  scene.Root().SetName(EveryByte().c_str());
  scene.Root().SetUserPropertyFloat("of the root", 0.1F);

  host::Node& top = AddDummy(scene, nullptr, EveryByte());
  static_cast<DummyObject*>(top.GetObjectReference())->SetBox({{-1, -2, -3}, {4, 5, 0.1F}});
  host::Node& euler = AddEveryKind(scene, &top, "same", false);
  host::Node& tcb = AddEveryKind(scene, &top, "same", true);
  euler.SetWireColor(PackWireColor(204, 51, 51));
  tcb.GetObjectReference()->GetFirstParameterBlock()->SetValue(2, 0, 33.3F);
  tcb.SetUserPropertyFloat("length", 0.3F);
  tcb.SetUserPropertyFloat(EveryByte().c_str(), -1e-40F);
  tcb.SetBoneDisplay(0);
  tcb.SetBoneEnabled(1, -9);
  tcb.Transform()->SetClassId(kCharacterTransformClasses[0]);
  tcb.Transform()->Rotation().SetConstant({0.1F, 0.2F, 0.3F, -0.9F});
  top.Transform()->Position().SetConstant({-0.0F, 1e-40F, 0.1F});

  host::Node& ball = AddSphere(scene, &tcb, "ball", 0.5F);
  ball.GetObjectReference()->GetParamBlock()->SetValue(1, 0, -2'147'483'647);
  ball.SetObjectOffset(Matrix3({0.1F, 0, 0}, {0, 1, 0}, {0, 0, 1}, {2, 3, 0}));
  ball.SetWireColor(0xFFFFFFFF);
  scene.Select(ball);
  scene.Select(top);
}

// A marker of an import, with a key at each of ten frames.
host::Node& AddMarker(host::Scene& scene, const char* name, host::GapManner manner,
                      std::vector<host::Gap> gaps) {
  host::Node& marker = AddSphere(scene, nullptr, name, 10.0F);
  marker.SetMeasurement(host::Measured{true, manner, std::move(gaps)});
  for (int frame = 0; frame < 10; ++frame) {
    const TimeValue tick = frame * 80;
    const bool missing = marker.Measurement()->IsMissing(tick);
    const auto place = static_cast<float>(100 + frame);
    marker.Transform()->Position().SetKey(tick,
                                          missing ? Point3() : Point3(place, place, place / 2.0F));
  }
  return marker;
}

// Markers with gaps at both ends and in between, shown in every manner, one that is never measured,
// and one that others hang below.
void BuildRecorded(host::Scene& scene) {
  scene.SetRecording(host::Recording{host::Rate{2997, 50}, 101, "mm", EveryByte(), true});
  scene.Animation().SetFrameRate(60);
  scene.Animation().SetTime(400);
  const std::vector<host::Gap> gaps = {{0, 80}, {240, 320}, {640, 720}};
  AddMarker(scene, "whole", host::GapManner::kHide, {});
  AddMarker(scene, "hidden", host::GapManner::kHide, gaps);
  AddMarker(scene, "held", host::GapManner::kHold, gaps);
  AddMarker(scene, "at the origin", host::GapManner::kOrigin, gaps);
  AddMarker(scene, "never", host::GapManner::kHide, {{0, 720}});
  host::Node& parent = AddMarker(scene, "parent", host::GapManner::kHide, gaps);
  AddDummy(scene, &parent, "child").SetMeasurement(host::Measured{});
}

}  // namespace

const std::vector<SampleScene>& SampleScenes() {
  static const std::vector<SampleScene> scenes = {
      {"nothing", BuildNothing},
      {"one_dummy", BuildOneDummy},
      {"one_bone", BuildOneBone},
      {"skeleton", BuildSkeleton},
      {"every_kind", BuildEveryKind},
      {"scaled", BuildScaled},
      {"several_trees", BuildSeveralTrees},
      {"wide_times", BuildWideTimes},
      {"strange_names", BuildStrangeNames},
      {"everything", BuildEverything},
      {"recorded", BuildRecorded},
  };
  return scenes;
}

}  // namespace test
