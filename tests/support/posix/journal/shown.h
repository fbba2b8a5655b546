#pragma once

#include <cstdint>
#include <string>

#include "sdk/core/class_id.h"
#include "sdk/core/control.h"
#include "sdk/core/interval.h"
#include "sdk/geom/box3.h"
#include "sdk/geom/quat.h"
#include "sdk/gfx/color.h"

// How a journal spells what is passed over a border: texts as they are, numbers in the shortest
// form that reads back the same, times in ticks.
namespace test {

inline std::string Shown(const std::string& text) { return text; }
inline std::string Shown(const char* text) { return text; }
inline std::string Shown(bool flag) { return flag ? "yes" : "no"; }
inline std::string Shown(int number) { return std::to_string(number); }
inline std::string Shown(unsigned number) { return std::to_string(number); }
inline std::string Shown(std::size_t number) { return std::to_string(number); }
std::string Shown(float number);
std::string Shown(double number);
std::string Shown(const Point3& point);
std::string Shown(const Quat& rotation);
std::string Shown(const Box3& box);
std::string Shown(const Interval& interval);
std::string Shown(const Color& color);
std::string Shown(SetMethod method);

// Between quotation marks, with line ends as \n, tabs as \t and NULs as \0.
std::string Quoted(const std::string& text);

// Two digits a byte.
std::string Hexadecimal(const std::string& bytes);

// What an object or controller of that class is called: "bone", "sphere".
std::string ClassName(SuperClassId super_class, ClassId class_id);

// "(204, 51, 51)"
std::string WireColorText(std::uint32_t color);

}  // namespace test
