#include "host/gltf/kept/restore_transform.h"

#include <cstddef>
#include <vector>

#include "host/animation/euler_controller.h"
#include "host/gltf/kept/kept_fields.h"
#include "host/gltf/kept/kept_values.h"

namespace host::gltf {

namespace {

constexpr std::size_t kAnglesPerKey = 3;

// Calls `set_key` with number, tick and value of every key in `record`.
template <typename Value, typename SetKey>
void RestoreKeys(const JsonField& record, StoredKeys& keys, const SetKey& set_key) {
  constexpr std::size_t kWidth = sizeof(Value) / sizeof(float);
  const auto count = record.FindMember(field::kKeys);
  if (!count) return;
  const std::vector<float> values = keys.TakeValues(*count, kWidth);
  const std::vector<TimeValue> ticks =
      keys.Ticks(record.Member(field::kTicks), values.size() / kWidth);
  for (std::size_t key = 0; key < ticks.size(); ++key) {
    Value value;
    Compose(&values[key * kWidth], value);
    set_key(key, ticks[key], value);
  }
}

template <typename Value>
void RestoreConstant(const JsonField& record, ValueController<Value>& controller) {
  constexpr std::size_t kWidth = sizeof(Value) / sizeof(float);
  Value value;
  Compose(FloatsIn<kWidth>(record.Member(field::kConstant)).data(), value);
  controller.SetConstant(value);
  controller.SetClassId(ClassIn(record.Member(field::kClass)));
}

template <typename Value>
void RestoreController(const JsonField& record, StoredKeys& keys,
                       ValueController<Value>& controller) {
  RestoreConstant(record, controller);
  RestoreKeys<Value>(record, keys, [&](std::size_t /*key*/, TimeValue tick, const Value& value) {
    controller.SetKey(tick, value);
  });
}

void RestoreEuler(const JsonField& record, StoredKeys& keys, EulerController& controller) {
  RestoreConstant(record, controller);
  const auto count = record.FindMember(field::kKeys);
  if (!count) return;
  const std::vector<double> angles = keys.TakeAngles(*count);
  RestoreKeys<Quat>(record, keys, [&](std::size_t key, TimeValue tick, const Quat& value) {
    const double* own = &angles[key * kAnglesPerKey];
    controller.SetKey(tick, value, {own[0], own[1], own[2]});
  });
}

void RestoreRotation(const JsonField& record, StoredKeys& keys, Scene& scene,
                     TransformController& transform) {
  const JsonField kind = record.Member(field::kKind);
  if (kind.Text() == "tcb") {
    transform.SetRotationController(static_cast<Control*>(
        scene.CreateInstance(kRotationControllerSuperClass, kTcbRotationClass)));
    RestoreController(record, keys, transform.Rotation());
  } else if (kind.Text() == "euler") {
    RestoreEuler(record, keys, dynamic_cast<EulerController&>(transform.Rotation()));
  } else {
    kind.Refuse("neither euler nor tcb");
  }
}

}  // namespace

void RestoreTransform(const JsonField& record, StoredKeys& keys, Scene& scene,
                      TransformController& transform) {
  transform.SetClassId(ClassIn(record.Member(field::kTransformClass)));
  RestoreController(record.Member(field::kPosition), keys, transform.Position());
  RestoreRotation(record.Member(field::kRotation), keys, scene, transform);
  RestoreController(record.Member(field::kScale), keys, transform.Scale());
}

}  // namespace host::gltf
