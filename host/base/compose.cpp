#include "host/base/compose.h"

#include "host/base/quaternion.h"

namespace host {
namespace {

Point3 ScaledRow(double x, double y, double z, double factor) {
  return {static_cast<float>(x * factor), static_cast<float>(y * factor),
          static_cast<float>(z * factor)};
}

}  // namespace

Matrix3 ComposeMatrix(const Point3& position, const Quat& rotation, const Point3& scale) {
  const Quaternion q = FromQuat(rotation);
  return {ScaledRow(1.0 - 2.0 * (q.y * q.y + q.z * q.z), 2.0 * (q.x * q.y - q.z * q.w),
                    2.0 * (q.x * q.z + q.y * q.w), scale.x),
          ScaledRow(2.0 * (q.x * q.y + q.z * q.w), 1.0 - 2.0 * (q.x * q.x + q.z * q.z),
                    2.0 * (q.y * q.z - q.x * q.w), scale.y),
          ScaledRow(2.0 * (q.x * q.z - q.y * q.w), 2.0 * (q.y * q.z + q.x * q.w),
                    1.0 - 2.0 * (q.x * q.x + q.y * q.y), scale.z),
          position};
}

}  // namespace host
