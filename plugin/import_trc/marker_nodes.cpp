#include "plugin/import_trc/marker_nodes.h"

#include <utility>

#include "plugin/exchange/marker_colors.h"
#include "plugin/exchange/object_nodes.h"
#include "sdk/core/cstr.h"
#include "sdk/core/object.h"
#include "sdk/paramblk2/parameter_block.h"

namespace orvane {
namespace {

constexpr char kCloudName[] = "TRCCloud";

constexpr float kSphereRadiusOfSize = 0.5F;
constexpr float kPointScaleOfSize = 0.25F;
constexpr float kRootExtentOfSize = 1.0F;

// Intended: in single precision, each product rounded, which ends in other bits than one rounding
// of both would.
float Size(const ImportTRCOptions& options, float factor) {
  return options.size * factor * static_cast<float>(options.scaleFactor);
}

void SetSphere(Object& sphere, float radius, TimeValue time) {
  IParamBlock* parameters = sphere.GetParamBlock();
  if (parameters == nullptr) return;
  const auto set = [&](int parameter, auto value) {
    parameters->SetValue(sphere.GetParamBlockIndex(parameter), time, value);
  };
  set(kSphereRadiusParameter, radius);
  set(1, 10);
  set(2, 1);
  set(3, 0.0F);
  set(6, 1);
}

INode* CreateSphereNode(Interface& interface, float radius) {
  auto sphere = CreateOwned<Object>(interface, kGeometricObjectSuperClass, kSphereClass);
  if (sphere == nullptr) return nullptr;
  SetSphere(*sphere, radius, interface.GetTime());
  return CreateNodeFor(interface, std::move(sphere));
}

INode* CreatePointNode(Interface& interface, float scale) {
  auto point = CreateOwned<Object>(interface, kHelperSuperClass, kPointHelperClass);
  if (point == nullptr) return nullptr;
  INode* const node = CreateNodeFor(interface, std::move(point));
  if (node == nullptr) return nullptr;
  Matrix3 axes;
  axes.IdentityMatrix();
  node->Scale(interface.GetTime(), axes, Point3(scale, scale, scale), true);
  return node;
}

}  // namespace

INode* CreateMarkerNode(Interface& interface, const ImportTRCOptions& options,
                        const std::string& name) {
  INode* node = options.geometry ? CreateSphereNode(interface, Size(options, kSphereRadiusOfSize))
                                 : CreatePointNode(interface, Size(options, kPointScaleOfSize));
  if (node == nullptr) return nullptr;
  node->SetName(name.c_str());
  node->SetWireColor(kMarkerColor);
  return node;
}

INode* CreateCloudRoot(Interface& interface, const ImportTRCOptions& options) {
  INode* node = CreateDummyNode(interface, Size(options, kRootExtentOfSize));
  if (node == nullptr) return nullptr;
  CStr name(kCloudName);
  interface.MakeNameUnique(name);
  node->SetName(name.data());
  return node;
}

}  // namespace orvane
