#pragma once

#include <array>

// Vectors of fixed size with components by index and by name. Value types without arithmetic: what
// little is needed stands where it is used. Lengths carry the unit of whoever holds the vector.
// Nothing fails. Threads may read one together, and each may change its own.
namespace orvane {

// What any vector can be asked, whatever its size. Indices count from 0 and are not checked; the
// caller passes 0 to 2, or 0 to 3 for a vector of four.
template <typename T>
class OrvaneVector {
 public:
  virtual ~OrvaneVector() = default;
  virtual T& operator[](unsigned int index) = 0;
  virtual const T& operator[](unsigned int index) const = 0;
  virtual T x() const = 0;
  virtual T y() const = 0;
  virtual T z() const = 0;
  virtual T w() const = 0;
};

template <typename T>
class OrvaneVector3 final : public OrvaneVector<T> {
 public:
  OrvaneVector3() = default;
  OrvaneVector3(T x, T y, T z) : components_{x, y, z} {}

  T& operator[](unsigned int index) override { return components_[index]; }
  const T& operator[](unsigned int index) const override { return components_[index]; }
  T x() const override { return components_[0]; }
  T y() const override { return components_[1]; }
  T z() const override { return components_[2]; }
  // Intended: 0, so that generic code may ask any vector for w.
  T w() const override { return T(); }

 private:
  std::array<T, 3> components_{};
};

template <typename T>
class OrvaneVector4 final : public OrvaneVector<T> {
 public:
  OrvaneVector4() = default;
  OrvaneVector4(T x, T y, T z, T w) : components_{x, y, z, w} {}

  T& operator[](unsigned int index) override { return components_[index]; }
  const T& operator[](unsigned int index) const override { return components_[index]; }
  T x() const override { return components_[0]; }
  T y() const override { return components_[1]; }
  T z() const override { return components_[2]; }
  T w() const override { return components_[3]; }

 private:
  std::array<T, 4> components_{};
};

// The scalar type that everything outside this folder uses.
using Vector3 = OrvaneVector3<double>;
using Vector4 = OrvaneVector4<double>;

}  // namespace orvane
