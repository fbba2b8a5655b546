#include "tests/support/posix/journal/shown.h"

#include <array>
#include <charconv>

namespace test {
namespace {

template <typename Number>
std::string Shortest(Number number) {
  std::array<char, 32> text{};
  const std::to_chars_result end = std::to_chars(text.data(), text.data() + text.size(), number);
  return std::string(text.data(), end.ptr);
}

std::string Listed(std::initializer_list<float> numbers) {
  std::string text;
  for (const float number : numbers) text += (text.empty() ? "" : ", ") + Shortest(number);
  return "(" + text + ")";
}

}  // namespace

std::string Shown(float number) { return Shortest(number); }
std::string Shown(double number) { return Shortest(number); }
std::string Shown(const Point3& point) { return Listed({point.x, point.y, point.z}); }

std::string Shown(const Quat& rotation) {
  return Listed({rotation.x, rotation.y, rotation.z, rotation.w});
}

std::string Shown(const Box3& box) { return Shown(box.min) + " to " + Shown(box.max); }

std::string Shown(const Interval& interval) {
  return std::to_string(interval.Start()) + ".." + std::to_string(interval.End());
}

std::string Shown(const Color& color) { return Listed({color.r, color.g, color.b}); }

std::string Shown(SetMethod method) {
  return method == SetMethod::kAbsolute ? "absolute" : "relative";
}

std::string Quoted(const std::string& text) {
  std::string quoted;
  for (const char c : text) {
    if (c == '\n') {
      quoted += "\\n";
    } else if (c == '\t') {
      quoted += "\\t";
    } else if (c == '\0') {
      quoted += "\\0";
    } else {
      quoted += c;
    }
  }
  return '"' + quoted + '"';
}

std::string Hexadecimal(const std::string& bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += kDigits[byte / 16];
    text += kDigits[byte % 16];
  }
  return text;
}

std::string ClassName(SuperClassId super_class, ClassId class_id) {
  if (class_id == kBoneClass) return "bone";
  if (class_id == kSphereClass) return "sphere";
  if (class_id == kDummyClass) return "dummy";
  if (class_id == kPointHelperClass) return "point";
  if (class_id == kTcbRotationClass) return "TCB controller";
  return "class " + std::to_string(super_class) + " (" + std::to_string(class_id.PartA()) + ", " +
         std::to_string(class_id.PartB()) + ")";
}

std::string WireColorText(std::uint32_t color) {
  return "(" + std::to_string(color & 0xFFU) + ", " + std::to_string(color >> 8U & 0xFFU) + ", " +
         std::to_string(color >> 16U) + ")";
}

}  // namespace test
