#pragma once

#include "formats/math/quaternion.h"
#include "formats/math/rotation_matrix3.h"
#include "formats/math/vector.h"
#include "sdk/geom/point3.h"
#include "sdk/geom/quat.h"

// The one place where the file's axes become the host's, and back. In the file the world is Y up
// and a segment's long axis is its local Y; in the host the world is Z up and a bone's long axis is
// its local X. Everything here acts on values local to the parent; lengths keep their unit, angles
// are radians, matrices act on column vectors.
namespace orvane {

// How the local values of one segment convert, and differently so for a root, whose parent is the
// world and no bone.
class AxisConversion {
 public:
  explicit AxisConversion(bool is_root);

  // A root's (x, y, z) of the file becomes (x, -z, y), any other segment's (y, z, x).
  Vector3 HostPosition(const Vector3& file_position) const;

  // C' R C for R = `file_rotation`, where C takes the axes of a host bone to those of a file
  // segment, that is (a, b, c) to (c, a, b), and C' is its transpose. For a root F C' R C, with F =
  // Ry(-90 degrees) Rx(180 degrees): F C' is Rx(90 degrees), which takes the file's up to the
  // host's. Example: a root that is not rotated at all becomes F.
  RotationMatrix3 HostRotation(const RotationMatrix3& file_rotation) const;

  // The inverses.
  //
  // A root's (x, y, z) of the host becomes (x, z, -y), any other bone's (z, x, y).
  Vector3 FilePosition(const Vector3& host_position) const;

  // C M C' for M = `host_rotation`. For a root A C M C', with A = Rx(180 degrees) Rz(-90 degrees):
  // A C is C F'. Example: a root that stands like F is not rotated in the file.
  RotationMatrix3 FileRotation(const RotationMatrix3& host_rotation) const;

 private:
  bool is_root_;
  RotationMatrix3 host_left_;
  RotationMatrix3 host_right_;
  RotationMatrix3 file_left_;
  RotationMatrix3 file_right_;
};

// The same numbers in the host's single precision.
Point3 HostPoint(const Vector3& position);

// The same rotation as the host writes it: in single precision, with the scalar part negated,
// because the host's quaternion turns the opposite way.
Quat HostQuaternion(const Quaternion& rotation);

}  // namespace orvane
