#pragma once

#include <cstdint>

#include "formats/math/euler_order.h"
#include "formats/math/rotation.h"
#include "formats/math/vector.h"

// A rotation as three Euler angles in radians under an order. Conversions follow Ken Shoemake,
// "Euler Angle Conversion", Graphics Gems IV, 1994, with a wrap of extracted angles into -pi to pi.
// Nothing fails. Threads may read one together, and each may change its own; but the default order
// is all threads', so that it is set while there are no others.
namespace orvane {

template <typename T>
class OrvaneRotationMatrix3;

template <typename T>
class OrvaneEulerRotation final : public OrvaneRotation<T> {
 public:
  // Angles 0, and the default order.
  OrvaneEulerRotation() = default;
  // First, second and third angle of `order`, before any exchange for a rotating frame.
  OrvaneEulerRotation(T x, T y, T z, const OrvaneEulerOrder& order = default_order_)
      : angles_(x, y, z), order_(order) {}
  // The angles of `matrix` in the default order.
  explicit OrvaneEulerRotation(const OrvaneRotationMatrix3<T>& matrix) { Set(matrix); }

  // Angle by index, 0 to 2, not checked.
  virtual T& operator[](unsigned int index) { return angles_[index]; }
  virtual const T& operator[](unsigned int index) const { return angles_[index]; }

  // Intended: these three act on the one order shared by all Euler rotations, never on this
  // object's own. A change affects only rotations constructed afterwards.
  virtual void SetDefaultOrder(const OrvaneEulerOrder& order) { default_order_ = order; }
  virtual void SetDefaultOrder(std::uint32_t code) { default_order_ = OrvaneEulerOrder(code); }
  virtual OrvaneEulerOrder& DefaultOrder() { return default_order_; }
  [[nodiscard]] static std::uint32_t DefaultOrderCode() { return default_order_.code(); }

  const OrvaneEulerOrder& order() const { return order_; }

  // Writes the angles that give `matrix` in this object's own order. Each lies within -pi to pi,
  // ends included. Where the first and third axis coincide (within 2^-19) the third angle is 0 and
  // the first carries the whole rotation.
  OrvaneEulerRotation& Set(const OrvaneRotationMatrix3<T>& matrix);

  // Writes the angles that give the same rotation as `other` in this object's own order. With equal
  // order codes they are copied bit for bit.
  OrvaneEulerRotation& Set(const OrvaneEulerRotation& other);

 private:
  inline static OrvaneEulerOrder default_order_;

  OrvaneVector3<T> angles_;
  OrvaneEulerOrder order_ = default_order_;
};

// Returns `current` with each angle moved by whole turns to within half a turn of the angle in
// `previous`, so that a series of Euler keys does not jump; a difference of exactly half a turn
// stays. The result has the default order. Requires that both have order code 0. An angle that is
// not finite stays as it is.
template <typename T>
OrvaneEulerRotation<T> ContinueEulerRotation(OrvaneEulerRotation<T> current,
                                             OrvaneEulerRotation<T> previous);

extern template class OrvaneEulerRotation<double>;
extern template OrvaneEulerRotation<double> ContinueEulerRotation(OrvaneEulerRotation<double>,
                                                                  OrvaneEulerRotation<double>);

using EulerRotation = OrvaneEulerRotation<double>;

}  // namespace orvane
