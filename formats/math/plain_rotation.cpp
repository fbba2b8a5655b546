#include "formats/math/plain_rotation.h"

#include "formats/math/euler_columns.h"

namespace orvane {

void PlainRotation::Set(const EulerRotation& rotation) {
  SetEulerColumns(rotation.order().Decode(), rotation[0], rotation[1], rotation[2], columns_);
}

}  // namespace orvane
