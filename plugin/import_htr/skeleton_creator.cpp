#include "plugin/import_htr/skeleton_creator.h"

#include "plugin/exchange/attempt.h"
#include "plugin/exchange/node_controllers.h"
#include "plugin/skeleton/axis_conversion.h"
#include "plugin/skeleton/bone.h"

namespace orvane {
namespace {

constexpr double kThicknessOfLength = 0.2;

bool PlaceBone(INode& node, const HtrSegment& segment, TimeValue time) {
  const AxisConversion axes(segment.GetIsRoot());

  const Vector3 translation = segment.GetBaseTranslation();
  node.SetUserPropertyFloat(kBaseTranslationX, static_cast<float>(translation.x()));
  node.SetUserPropertyFloat(kBaseTranslationY, static_cast<float>(translation.y()));
  node.SetUserPropertyFloat(kBaseTranslationZ, static_cast<float>(translation.z()));
  // Intended: the global scale, which sizes bones and keyed translations, does not enter here.
  const Point3 position = HostPoint(axes.HostPosition(translation));
  if (!SetPosition(PositionController(node), time, position)) return false;

  EulerRotation rotation = segment.GetBaseRotation();
  node.SetUserPropertyFloat(kBaseRotationX, static_cast<float>(rotation[0]));
  node.SetUserPropertyFloat(kBaseRotationY, static_cast<float>(rotation[1]));
  node.SetUserPropertyFloat(kBaseRotationZ, static_cast<float>(rotation[2]));
  rotation.Set(axes.HostRotation(RotationMatrix3(rotation)));
  if (!SetRotation(RotationController(node), time, HostQuaternion(Quaternion(rotation))))
    return false;

  node.SetUserPropertyFloat(kBaseLength, static_cast<float>(segment.GetBoneLength()));
  return true;
}

}  // namespace

// A bone whose children are being created.
struct SkeletonCreator::OpenBone {
  const HtrSegment* segment;
  INode* node;
  int next_child;
};

INode* SkeletonCreator::Create(const HtrSegment& root) {
  INode* root_node = CreateSegmentNode(root, nullptr);
  if (root_node == nullptr) return nullptr;

  std::vector<OpenBone> open{{&root, root_node, 0}};
  try {
    if (CreateBonesBelow(open)) return root_node;
  } catch (...) {
    Attempt([this, &open] { DeleteAncestors(open); });
    throw;
  }
  DeleteAncestors(open);
  return nullptr;
}

// Returns false when a bone cannot be created, which `open` leads to then.
bool SkeletonCreator::CreateBonesBelow(std::vector<OpenBone>& open) {
  while (!open.empty()) {
    OpenBone& bone = open.back();
    const HtrSegment* child = bone.segment->GetChild(bone.next_child++);
    if (child == nullptr) {
      open.pop_back();
      continue;
    }
    INode* child_node = CreateSegmentNode(*child, bone.node);
    if (child_node == nullptr) return false;
    open.push_back({child, child_node, 0});
  }
  return true;
}

// Deletes the bones that wait for a child that failed, the innermost first.
void SkeletonCreator::DeleteAncestors(std::vector<OpenBone>& open) {
  for (; !open.empty(); open.pop_back()) interface_.DeleteNode(open.back().node, true);
}

// The bone of `segment` alone, with its end effector when it is a leaf; null on failure.
INode* SkeletonCreator::CreateSegmentNode(const HtrSegment& segment, INode* parent) {
  const BoneDimensions size{segment.GetBoneLength() * options_.scaleFactor, Thickness(segment)};
  INode* node = CreateBoneNode(interface_, segment.GetName(), size);
  if (node == nullptr) return nullptr;
  // Attached first, so that every value set below is relative to the parent.
  if (parent != nullptr) parent->AttachChild(node, false);
  if (!PlaceBone(*node, segment, interface_.GetTime())) return nullptr;

  const bool is_leaf = segment.GetNumChildren() == 0;
  if (is_leaf && options_.endEffectors && !CreateEndEffector(segment, *node)) return nullptr;
  return node;
}

bool SkeletonCreator::CreateEndEffector(const HtrSegment& segment, INode& node) {
  const BoneDimensions size{Thickness(segment), Thickness(segment)};
  INode* effector = CreateBoneNode(interface_, segment.GetName() + "_Effector", size);
  if (effector == nullptr) return false;
  // Intended: the offset is the bone's length in the file; the global scale, which lengthens the
  // drawn bone, does not enter it.
  const Point3 tip(static_cast<float>(segment.GetBoneLength()), 0.0F, 0.0F);
  effector->Move(0, Matrix3(), tip, true, false, kNoPivotMode, true);
  node.AttachChild(effector, false);
  return true;
}

double SkeletonCreator::Thickness(const HtrSegment& segment) const {
  return segment.GetBoneLength() * kThicknessOfLength * static_cast<double>(options_.size) *
         options_.scaleFactor;
}

}  // namespace orvane
