#include "host/gltf/restore_transform.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/animation/euler_controller.h"
#include "host/gltf/kept_fields.h"
#include "host/gltf/kept_values.h"
#include "host/gltf/refusal.h"

namespace host::gltf {

namespace {

constexpr std::size_t kWordsPerAngle = 2;
constexpr std::size_t kAnglesPerKey = 3;

std::vector<TimeValue> TicksIn(const JsonField& reference, std::size_t count,
                               const StoredNumbers& numbers) {
  std::vector<TimeValue> ticks;
  ticks.reserve(count);
  for (const std::uint32_t word : numbers.Words(reference, count)) {
    const auto tick = static_cast<TimeValue>(word);
    if (!ticks.empty() && tick <= ticks.back()) {
      reference.Refuse("the index of ticks that do not rise");
    }
    ticks.push_back(tick);
  }
  return ticks;
}

std::vector<double> AnglesIn(const JsonField& reference, std::size_t count,
                             const StoredNumbers& numbers) {
  const auto words = numbers.Words(reference, count * kAnglesPerKey * kWordsPerAngle);
  std::vector<double> angles;
  angles.reserve(count * kAnglesPerKey);
  for (std::size_t i = 0; i < words.size(); i += kWordsPerAngle) {
    angles.push_back(std::bit_cast<double>(std::uint64_t{words[i + 1]} << 32U | words[i]));
  }
  if (!AreFinite(angles)) reference.Refuse("the index of numbers that are not finite");
  return angles;
}

// Calls `set_key` with tick and value of every key in `record`.
template <typename Value, typename SetKey>
void RestoreKeys(const JsonField& record, StoredNumbers& numbers, const SetKey& set_key) {
  constexpr std::size_t kWidth = sizeof(Value) / sizeof(float);
  const auto reference = record.FindMember(field::kValues);
  if (!reference) return;
  const std::vector<float> values = numbers.Floats(*reference, kWidth);
  if (!AreFinite(values)) reference->Refuse("the index of numbers that are not finite");
  const std::size_t count = values.size() / kWidth;
  const std::vector<TimeValue> ticks = TicksIn(record.Member(field::kTicks), count, numbers);
  for (std::size_t key = 0; key < count; ++key) {
    Value value;
    Compose(&values[key * kWidth], value);
    set_key(ticks[key], value);
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
void RestoreController(const JsonField& record, StoredNumbers& numbers,
                       ValueController<Value>& controller) {
  RestoreConstant(record, controller);
  RestoreKeys<Value>(record, numbers,
                     [&](TimeValue tick, const Value& value) { controller.SetKey(tick, value); });
}

void RestoreEuler(const JsonField& record, StoredNumbers& numbers, EulerController& controller) {
  RestoreConstant(record, controller);
  std::vector<TimeValue> ticks;
  std::vector<Quat> values;
  RestoreKeys<Quat>(record, numbers, [&](TimeValue tick, const Quat& value) {
    ticks.push_back(tick);
    values.push_back(value);
  });
  if (ticks.empty()) return;
  const auto angles = AnglesIn(record.Member(field::kAngles), ticks.size(), numbers);
  for (std::size_t key = 0; key < ticks.size(); ++key) {
    const double* own = &angles[key * kAnglesPerKey];
    controller.SetKey(ticks[key], values[key], {own[0], own[1], own[2]});
  }
}

void RestoreRotation(const JsonField& record, StoredNumbers& numbers, Scene& scene,
                     TransformController& transform) {
  const JsonField kind = record.Member(field::kKind);
  if (kind.Text() == "tcb") {
    transform.SetRotationController(static_cast<Control*>(
        scene.CreateInstance(kRotationControllerSuperClass, kTcbRotationClass)));
    RestoreController(record, numbers, transform.Rotation());
  } else if (kind.Text() == "euler") {
    RestoreEuler(record, numbers, dynamic_cast<EulerController&>(transform.Rotation()));
  } else {
    kind.Refuse("neither euler nor tcb");
  }
}

}  // namespace

void RestoreTransform(const JsonField& record, StoredNumbers& numbers, Scene& scene,
                      TransformController& transform) {
  transform.SetClassId(ClassIn(record.Member(field::kTransformClass)));
  RestoreController(record.Member(field::kPosition), numbers, transform.Position());
  RestoreRotation(record.Member(field::kRotation), numbers, scene, transform);
  RestoreController(record.Member(field::kScale), numbers, transform.Scale());
}

}  // namespace host::gltf
