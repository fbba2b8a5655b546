#include "examples/rig.h"

#include <cmath>

#include "sdk/paramblk2/parameter_block.h"

namespace examples {
namespace {

constexpr double kDegree = 3.14159265358979323846 / 180;
constexpr TimeValue kTicksPerFrame = 160;
constexpr TimeValue kLastFrame = 30;

host::Node& Add(host::Scene& scene, SuperClassId super_class, ClassId class_id, const char* name,
                host::Node* parent, const Point3& position) {
  auto* object = static_cast<Object*>(scene.CreateInstance(super_class, class_id));
  host::Node& node = *scene.CreateNode(object);
  node.SetName(name);
  if (parent != nullptr) parent->AttachChild(&node, false);
  node.Transform()->Position().SetConstant(position);
  return node;
}

host::Node& AddBone(host::Scene& scene, const char* name, host::Node& parent,
                    const Point3& position, float length) {
  host::Node& bone = Add(scene, kGeometricObjectSuperClass, kBoneClass, name, &parent, position);
  bone.SetBoneEnabled(1, 0);
  bone.GetObjectReference()->GetFirstParameterBlock()->SetValue(kBoneLengthParameter, 0, length);
  return bone;
}

void Enlarge(host::Node& node, float factor) {
  node.Transform()->Scale().SetConstant(Point3(factor, factor, factor));
}

// Upright, which takes a bone's long axis, X, to Z, and then turned about that by `degrees`. The
// host's quaternion turns the opposite way to the textbook's: its last component is negated.
Quat UprightTurnedBy(double degrees) {
  const double half = std::sqrt(0.5);
  const double c = std::cos(degrees * kDegree / 2);
  const double s = std::sin(degrees * kDegree / 2);
  // The textbook's product of a turn about Z and one about Y by -90 degrees.
  return Quat(static_cast<float>(half * s), static_cast<float>(-half * c),
              static_cast<float>(half * s), static_cast<float>(-half * c));
}

void TurnMast(host::Node& mast) {
  for (TimeValue frame = 0; frame <= kLastFrame; ++frame) {
    mast.Transform()->Rotation().SetKey(frame * kTicksPerFrame, UprightTurnedBy(3.0 * frame));
  }
}

}  // namespace

void BuildRig(host::Scene& scene) {
  scene.SetMillimetersPerUnit(10);
  scene.Animation().SetRange(Interval(0, kLastFrame * kTicksPerFrame));

  host::Node& yard = Add(scene, kHelperSuperClass, kDummyClass, "Yard", nullptr, Point3(100, 0, 0));
  Enlarge(yard, 2);
  host::Node& mast = AddBone(scene, "Mast", yard, Point3(0, 0, 10), 50);
  TurnMast(mast);

  host::Node& boom = AddBone(scene, "Boom", mast, Point3(50, 0, 0), 80);
  boom.SetObjectOffset(Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 5, 0}));
  AddBone(scene, "Hook_Effector", boom, Point3(80, 0, 0), 5);
  host::Node& pulley = Add(scene, kHelperSuperClass, kPointHelperClass, "Pulley", &boom, Point3());
  AddBone(scene, "Cable", pulley, Point3(80, 0, 0), 30);

  host::Node& counterweight = AddBone(scene, "Counterweight", mast, Point3(50, -20, 0), 20);
  Enlarge(counterweight, 0.5F);

  host::Node& second_boom = AddBone(scene, "Boom", mast, Point3(25, 0, 0), 40);
  AddBone(scene, "Winch", second_boom, Point3(40, 0, 0), 10);
}

}  // namespace examples
