#include "host/scene/box_object.h"

#include <algorithm>
#include <cstddef>

#include "host/base/number_range.h"

namespace host {

BoxObject::BoxObject(InstancePool& pool)
    : SceneObjectOf(pool, kHelperSuperClass, kDummyClass, "Dummy"),
      box_(Point3(-10.0F, -10.0F, -10.0F), Point3(10.0F, 10.0F, 10.0F)) {}

std::vector<double> BoxObject::Parameters() const {
  return {box_.min.x, box_.min.y, box_.min.z, box_.max.x, box_.max.y, box_.max.z};
}

bool BoxObject::SetParameters(const std::vector<double>& values) {
  if (values.size() != Parameters().size()) return false;
  if (!std::all_of(values.begin(), values.end(), FitsFloat)) return false;
  const auto corner = [&values](std::size_t first) {
    return Point3(static_cast<float>(values[first]), static_cast<float>(values[first + 1]),
                  static_cast<float>(values[first + 2]));
  };
  box_ = Box3(corner(0), corner(3));
  return true;
}

}  // namespace host
