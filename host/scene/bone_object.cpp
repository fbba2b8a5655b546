#include "host/scene/bone_object.h"

#include <algorithm>

#include "host/base/number_range.h"

namespace host {
namespace {

bool IsParameter(int index) { return index >= 0 && index < BoneObject::kParameterCount; }

}  // namespace

BoneObject::BoneObject(InstancePool& pool)
    : SceneObjectOf(pool, kGeometricObjectSuperClass, kBoneClass, "Bone"),
      parameters_{10.0F, 10.0F, 90.0F, 100.0F} {}

bool BoneObject::SetValue(int index, TimeValue /*time*/, float value) {
  if (!IsParameter(index)) return false;
  parameters_.at(static_cast<std::size_t>(index)) = value;
  return true;
}

float BoneObject::GetFloat(int index, TimeValue /*time*/) {
  return IsParameter(index) ? Parameter(index) : 0.0F;
}

bool BoneObject::SetParameters(const std::vector<double>& values) {
  if (values.size() != parameters_.size()) return false;
  if (!std::all_of(values.begin(), values.end(), FitsFloat)) return false;
  std::transform(values.begin(), values.end(), parameters_.begin(),
                 [](double value) { return static_cast<float>(value); });
  return true;
}

}  // namespace host
