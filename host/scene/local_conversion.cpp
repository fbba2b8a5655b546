#include "host/scene/local_conversion.h"

#include <vector>

#include "sdk/geom/point3.h"
#include "sdk/geom/quat.h"

namespace host {
namespace {

struct LocalValues {
  Point3 position;
  Quat rotation;
  Point3 scale;
};

LocalValues Decomposed(const Matrix3& matrix) {
  LocalValues values;
  DecomposeMatrix(matrix, values.position, values.rotation, values.scale);
  return values;
}

// The wanted values at the keys of `controller`, or at `now` when it has none.
std::vector<LocalValues> ValuesFor(const Controller& controller, TimeValue now,
                                   const std::function<Matrix3(TimeValue)>& wanted) {
  if (controller.KeyCount() == 0) return {Decomposed(wanted(now))};
  std::vector<LocalValues> values;
  values.reserve(controller.KeyCount());
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    values.push_back(Decomposed(wanted(controller.KeyTick(key))));
  }
  return values;
}

template <typename Value>
void Store(ValueController<Value>& controller, const std::vector<LocalValues>& values,
           Value LocalValues::*part) {
  if (controller.KeyCount() == 0) {
    controller.SetConstant(values.front().*part);
    return;
  }
  for (std::size_t key = 0; key < values.size(); ++key) {
    controller.SetKey(controller.KeyTick(key), values[key].*part);
  }
}

}  // namespace

void ConvertLocal(TransformController& transform, TimeValue now,
                  const std::function<Matrix3(TimeValue)>& wanted) {
  const auto positions = ValuesFor(transform.Position(), now, wanted);
  const auto rotations = ValuesFor(transform.Rotation(), now, wanted);
  const auto scales = ValuesFor(transform.Scale(), now, wanted);
  Store(transform.Position(), positions, &LocalValues::position);
  Store(transform.Rotation(), rotations, &LocalValues::rotation);
  Store(transform.Scale(), scales, &LocalValues::scale);
}

}  // namespace host
