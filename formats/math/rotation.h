#pragma once

// What the three representations of a rotation have in common. Angles are radians everywhere. They
// are value types, of which nothing fails; threads may read one together, and each may change its
// own.
namespace orvane {

template <typename T>
class OrvaneRotation {
 public:
  virtual ~OrvaneRotation() = 0;
};

template <typename T>
inline OrvaneRotation<T>::~OrvaneRotation() = default;

}  // namespace orvane
