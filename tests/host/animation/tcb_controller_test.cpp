#include "host/animation/tcb_controller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "host/animation/euler_controller.h"
#include "tests/host/animation/controller_fixture.h"
#include "tests/support/host_geometry.h"

namespace host {
namespace {

using test::ExpectSameRotation;
using test::Turn;

// Quaternions of the naive kind: powers through the angle and the axis.
struct Naive {
  double w, x, y, z;
};

Naive operator*(const Naive& a, const Naive& b) {
  return {
      a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z, a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y,
      a.w * b.y + a.y * b.w + a.z * b.x - a.x * b.z, a.w * b.z + a.z * b.w + a.x * b.y - a.y * b.x};
}

Naive Inverted(const Naive& q) { return {q.w, -q.x, -q.y, -q.z}; }

Naive Power(const Naive& q, double exponent) {
  const double half = std::acos(std::clamp(q.w, -1.0, 1.0));
  if (half < 1e-9) return {1.0, 0.0, 0.0, 0.0};
  const double s = std::sin(half * exponent) / std::sin(half);
  return {std::cos(half * exponent), q.x * s, q.y * s, q.z * s};
}

Naive Step(const Naive& from, const Naive& to) {
  const Naive step = Inverted(from) * to;
  return step.w >= 0.0 ? step : Naive{-step.w, -step.x, -step.y, -step.z};
}

Naive Slerped(const Naive& from, const Naive& to, double u) {
  return from * Power(Inverted(from) * to, u);
}

using Log3 = std::array<double, 3>;

Log3 LogOf(const Naive& q) {
  const double half = std::acos(std::clamp(q.w, -1.0, 1.0));
  const double s = half < 1e-9 ? 1.0 : half / std::sin(half);
  return {q.x * s, q.y * s, q.z * s};
}

Naive ExpOf(const Log3& v) {
  const double half = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
  const double s = half < 1e-9 ? 1.0 : std::sin(half) / half;
  return {std::cos(half), v[0] * s, v[1] * s, v[2] * s};
}

Log3 Mixed(const Log3& a, double weight_a, const Log3& b, double weight_b) {
  return {a[0] * weight_a + b[0] * weight_b, a[1] * weight_a + b[1] * weight_b,
          a[2] * weight_a + b[2] * weight_b};
}

struct NaiveKey {
  double tick;
  Naive value;
};

// Kochanek-Bartels tangents at t = c = b = 0, corrected for uneven spacing, on the segment from
// key `i`.
Naive Reference(const std::vector<NaiveKey>& keys, std::size_t i, double time) {
  const double length = keys[i + 1].tick - keys[i].tick;
  const double u = (time - keys[i].tick) / length;
  const Naive start = keys[i].value;
  const Log3 chord = LogOf(Step(start, keys[i + 1].value));
  const Naive end = start * ExpOf(chord);
  Log3 leaving = chord;
  if (i > 0) {
    const double before = keys[i].tick - keys[i - 1].tick;
    const Log3 incoming = LogOf(Step(keys[i - 1].value, start));
    leaving = Mixed(incoming, length / (before + length), chord, length / (before + length));
  }
  Log3 arriving = chord;
  if (i + 2 < keys.size()) {
    const double after = keys[i + 2].tick - keys[i + 1].tick;
    const Log3 outgoing = LogOf(Step(end, keys[i + 2].value));
    arriving = Mixed(outgoing, length / (after + length), chord, length / (after + length));
  }
  const Naive inner_start = start * ExpOf(Mixed(leaving, 0.5, chord, -0.5));
  const Naive inner_end = end * ExpOf(Mixed(chord, 0.5, arriving, -0.5));
  return Slerped(Slerped(start, end, u), Slerped(inner_start, inner_end, u), 2.0 * u * (1.0 - u));
}

// The cubic through p0 and p1 with the given tangents.
double Hermite(double p0, double p1, double leaving, double arriving, double u) {
  return (2 * u * u * u - 3 * u * u + 1) * p0 + (u * u * u - 2 * u * u + u) * leaving +
         (-2 * u * u * u + 3 * u * u) * p1 + (u * u * u - u * u) * arriving;
}

class TcbControllerTest : public ControllerFixture, public testing::Test {
 protected:
  TcbController controller_{environment_};
};

TEST_F(TcbControllerTest, StartsWithoutRotation) {
  ExpectSameRotation(controller_.ValueAt(0), Quat());
}

TEST_F(TcbControllerTest, JoinsTwoKeysByAPlainTurn) {
  controller_.SetKey(-100, Turn(0, 0.6, 0.8, 10));
  controller_.SetKey(100, Turn(0, 0.6, 0.8, 90));
  for (int step = 0; step <= 8; ++step) {
    ExpectSameRotation(controller_.ValueAt(-100 + 25 * step), Turn(0, 0.6, 0.8, 10 + 10.0 * step));
  }
}

TEST_F(TcbControllerTest, TakesTheShorterWay) {
  controller_.SetKey(0, Turn(0, 0, 1, 170));
  controller_.SetKey(100, Turn(0, 0, 1, -170));
  ExpectSameRotation(controller_.ValueAt(50), Turn(0, 0, 1, 180));
}

TEST_F(TcbControllerTest, IgnoresTheSignsOfItsKeys) {
  TcbController negated(environment_);
  for (int i = 0; i < 5; ++i) {
    const Quat turn = Turn(0.6, 0.8, 0, 30.0 * i * i);
    const float sign = i % 2 == 0 ? 1.0F : -1.0F;
    controller_.SetKey(100 * i, turn);
    negated.SetKey(100 * i, Quat(sign * turn.x, sign * turn.y, sign * turn.z, sign * turn.w));
  }
  for (TimeValue time = 0; time <= 400; time += 10) {
    ExpectSameRotation(negated.ValueAt(time), controller_.ValueAt(time));
  }
}

// About one axis the curve is the well-known cubic on the angles.
TEST_F(TcbControllerTest, IsTheCubicOfTheAnglesAboutOneAxis) {
  const std::vector<std::pair<TimeValue, double>> keys = {
      {-160, 10}, {0, 50}, {80, 30}, {400, -20}, {480, 45}};
  for (const auto& [tick, degrees] : keys) controller_.SetKey(tick, Turn(0, 0, 1, degrees));
  for (std::size_t i = 0; i + 1 < keys.size(); ++i) {
    const auto [tick, from] = keys[i];
    const auto [next_tick, to] = keys[i + 1];
    const double length = next_tick - tick;
    double leaving = to - from;
    if (i > 0) leaving = (to - keys[i - 1].second) * length / (next_tick - keys[i - 1].first);
    double arriving = to - from;
    if (i + 2 < keys.size()) {
      arriving = (keys[i + 2].second - from) * length / (keys[i + 2].first - tick);
    }
    for (TimeValue time = tick; time <= next_tick; time += 8) {
      SCOPED_TRACE(time);
      const double degrees = Hermite(from, to, leaving, arriving, (time - tick) / length);
      ExpectSameRotation(controller_.ValueAt(time), Turn(0, 0, 1, degrees));
    }
  }
}

TEST_F(TcbControllerTest, AgreesWithANaiveSplineOnRandomKeys) {
  std::mt19937 random(8);
  std::normal_distribution<double> component;
  std::uniform_int_distribution<TimeValue> spacing(1, 400);
  for (int round = 0; round < 20; ++round) {
    controller_.DeleteAllKeys();
    std::vector<NaiveKey> keys;
    Naive value{1, 0, 0, 0};
    TimeValue tick = -1000;
    for (int i = 0; i < 8; ++i) {
      tick += spacing(random);
      value = value *
              ExpOf({0.4 * component(random), 0.4 * component(random), 0.4 * component(random)});
      const Quat rounded(static_cast<float>(value.x), static_cast<float>(value.y),
                         static_cast<float>(value.z), static_cast<float>(value.w));
      controller_.SetKey(tick, rounded);
      keys.push_back({static_cast<double>(tick), value});
    }
    for (std::size_t i = 0; i + 1 < keys.size(); ++i) {
      for (double time = keys[i].tick; time <= keys[i + 1].tick; time += 7.0) {
        const Naive expected = Reference(keys, i, time);
        ExpectSameRotation(controller_.ValueAt(static_cast<TimeValue>(time)),
                           Quat(static_cast<float>(expected.x), static_cast<float>(expected.y),
                                static_cast<float>(expected.z), static_cast<float>(expected.w)),
                           1e-5);
      }
    }
  }
}

TEST_F(TcbControllerTest, TakesOverValueAndKeysOfAnEulerController) {
  EulerController euler(environment_);
  euler.SetConstant(Turn(0, 0, 1, 15));
  for (int i = 0; i < 4; ++i) euler.SetKey(160 * i - 160, Turn(0, 0.6, 0.8, 25.0 * i));
  controller_.CopyFrom(&euler);
  ASSERT_EQ(controller_.KeyCount(), 4U);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(controller_.ValueAt(160 * i - 160), Turn(0, 0.6, 0.8, 25.0 * i));
  }
  EXPECT_EQ(controller_.Constant(), Turn(0, 0, 1, 15));
}

TEST_F(TcbControllerTest, ShiftsInTheSpaceOfTheParent) {
  controller_.SetKey(0, Turn(1, 0, 0, 30));
  controller_.SetKey(100, Turn(0, 1, 0, 30));
  // The key at 0 gets a quarter turn about the parent's Z axis on top, so the other does too.
  const Quat quarter = Turn(0, 0, 1, 90);
  const Quat target = ToQuat(Product(FromQuat(Turn(1, 0, 0, 30)), FromQuat(quarter)));
  controller_.SetValue(0, &target, 1, SetMethod::kAbsolute);
  ExpectSameRotation(controller_.KeyValue(1),
                     ToQuat(Product(FromQuat(Turn(0, 1, 0, 30)), FromQuat(quarter))));
}

}  // namespace
}  // namespace host
