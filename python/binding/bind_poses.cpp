#include <nanobind/nanobind.h>
#include <nanobind/ndarray.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "python/binding/bindings.h"
#include "python/binding/motion_take.h"
#include "python/binding/world_poses.h"

namespace nb = nanobind;

namespace binding {
namespace {

// (frames, segments, numbers), which whoever gets it owns.
using OwnArray = nb::ndarray<nb::numpy, double, nb::ndim<3>>;

OwnArray HandOver(std::unique_ptr<FrameArray> array) {
  FrameArray* const values = array.get();
  const nb::capsule owner(values,
                          [](void* each) noexcept { delete static_cast<FrameArray*>(each); });
  (void)array.release();
  return OwnArray(values->Row(0, 0), {values->Frames(), values->Names(), values->Numbers()}, owner,
                  {values->FrameStride(), values->NameStride(), 1});
}

OwnArray PositionsOf(const MotionTake& take) {
  std::unique_ptr<FrameArray> positions;
  {
    const nb::gil_scoped_release unlocked;
    positions = std::make_unique<FrameArray>(WorldPositions(take.document()));
  }
  return HandOver(std::move(positions));
}

RotationForm FormOf(std::string_view name) {
  if (name == "matrix") return RotationForm::kMatrix;
  if (name == "quaternion") return RotationForm::kQuaternion;
  if (name == "euler") return RotationForm::kEuler;
  throw std::invalid_argument("a rotation is a \"matrix\", a \"quaternion\" or \"euler\"");
}

OwnArray RotationsOf(const MotionTake& take, const char* form_name) {
  const RotationForm form = FormOf(form_name);
  std::unique_ptr<FrameArray> rotations;
  {
    const nb::gil_scoped_release unlocked;
    rotations = std::make_unique<FrameArray>(WorldRotations(take.document(), form));
  }
  return HandOver(std::move(rotations));
}

}  // namespace

void BindPoses(nb::module_& module) {
  module.def("world_positions", PositionsOf, nb::arg("motion"));
  module.def("world_rotations", RotationsOf, nb::arg("motion"), nb::arg("form"));
}

}  // namespace binding
