#include "plugin/import_htr/scene_nodes.h"

#include <utility>

#include "plugin/exchange/object_nodes.h"
#include "sdk/core/object.h"
#include "sdk/gfx/color.h"
#include "sdk/paramblk2/parameter_block.h"

namespace orvane {
namespace {

constexpr int kNoBoneLinks = 0;
constexpr int kBoneOn = 1;

unsigned ColorByte(float part) { return static_cast<unsigned>(static_cast<int>(part * 255.0F)); }

WireColor NewObjectColor() {
  const Color color = GetUIColor(kNewObjectColorIndex);
  return PackWireColor(ColorByte(color.r), ColorByte(color.g), ColorByte(color.b));
}

void SetBoneSize(Object& bone, const BoneDimensions& size, TimeValue time) {
  ParameterBlock* parameters = bone.GetFirstParameterBlock();
  if (parameters == nullptr) return;
  parameters->SetValue(kBoneLengthParameter, time, static_cast<float>(size.length));
  parameters->SetValue(kBoneWidthParameter, time, static_cast<float>(size.thickness));
  parameters->SetValue(kBoneHeightParameter, time, static_cast<float>(size.thickness));
}

}  // namespace

INode* CreateBoneNode(Interface& interface, const std::string& name, const BoneDimensions& size) {
  const TimeValue now = interface.GetTime();
  auto bone = CreateOwned<Object>(interface, kGeometricObjectSuperClass, kBoneClass);
  if (bone == nullptr) return nullptr;
  SetBoneSize(*bone, size, now);

  INode* node = CreateNodeFor(interface, std::move(bone));
  if (node == nullptr) return nullptr;
  node->SetName(name.c_str());
  node->SetBoneDisplay(kNoBoneLinks);
  node->SetBoneEnabled(kBoneOn, now);
  node->SetWireColor(NewObjectColor());
  return node;
}

INode* CreateGroupNode(Interface& interface, const std::string& name, float half_extent) {
  INode* node = CreateDummyNode(interface, half_extent);
  if (node == nullptr) return nullptr;
  node->SetName(name.c_str());
  node->SetWireColor(NewObjectColor());
  return node;
}

}  // namespace orvane
