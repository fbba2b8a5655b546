#include "host/scene/sphere_object.h"

#include <algorithm>

#include "host/base/number_range.h"

namespace host {
namespace {

enum class ParameterType { kFloat, kInteger };

constexpr std::array<ParameterType, SphereObject::kParameterCount> kTypes = {
    ParameterType::kFloat,   ParameterType::kInteger, ParameterType::kInteger,
    ParameterType::kFloat,   ParameterType::kInteger, ParameterType::kInteger,
    ParameterType::kInteger,
};

bool IsParameter(int index) { return index >= 0 && index < SphereObject::kParameterCount; }

bool HasType(int index, ParameterType type) {
  return IsParameter(index) && kTypes.at(static_cast<std::size_t>(index)) == type;
}

}  // namespace

SphereObject::SphereObject(InstancePool& pool)
    : SceneObjectOf(pool, kGeometricObjectSuperClass, kSphereClass, "Sphere"),
      parameters_{10.0, 32.0, 1.0, 0.0, 0.0, 0.0, 1.0} {}

int SphereObject::GetParamBlockIndex(int i) { return IsParameter(i) ? i : -1; }

bool SphereObject::SetValue(int index, TimeValue /*time*/, float value) {
  if (!HasType(index, ParameterType::kFloat)) return false;
  parameters_.at(static_cast<std::size_t>(index)) = value;
  return true;
}

bool SphereObject::SetValue(int index, TimeValue /*time*/, int value) {
  if (!HasType(index, ParameterType::kInteger)) return false;
  parameters_.at(static_cast<std::size_t>(index)) = value;
  return true;
}

bool SphereObject::SetParameters(const std::vector<double>& values) {
  if (values.size() != parameters_.size()) return false;
  const auto fits = [](ParameterType type, double value) {
    return type == ParameterType::kFloat ? FitsFloat(value) : FitsInt(value);
  };
  if (!std::equal(kTypes.begin(), kTypes.end(), values.begin(), fits)) return false;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool is_float = kTypes[i] == ParameterType::kFloat;
    parameters_[i] = is_float ? static_cast<float>(values[i]) : values[i];
  }
  return true;
}

}  // namespace host
