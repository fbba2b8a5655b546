// Writes a motion file to measure with: write_motion FILE [SEGMENTS FRAMES tree|chain|fan].

#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "bench/motion_text.h"
#include "formats/text/numbers.h"

namespace {

std::optional<bench::MotionShape> ShapeNamed(const std::string& name) {
  if (name == "tree") return bench::MotionShape::kTree;
  if (name == "chain") return bench::MotionShape::kChain;
  if (name == "fan") return bench::MotionShape::kFan;
  return std::nullopt;
}

std::optional<bench::MotionSize> SizeFrom(const std::vector<std::string>& arguments) {
  if (arguments.size() == 1) return bench::MotionSize();
  if (arguments.size() != 4) return std::nullopt;
  const auto shape = ShapeNamed(arguments[3]);
  if (!shape) return std::nullopt;
  return bench::MotionSize{orvane::ParseInt(arguments[1]), orvane::ParseInt(arguments[2]), *shape};
}

}  // namespace

int main(int argument_count, char** argument_values) {
  const std::vector<std::string> arguments(argument_values + 1, argument_values + argument_count);
  const auto size = SizeFrom(arguments);
  if (!size) {
    std::cerr << "Usage: write_motion FILE [SEGMENTS FRAMES tree|chain|fan]\n";
    return 2;
  }
  const std::string text = bench::MakeMotionText(*size);
  std::ofstream file(arguments[0], std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  return file ? 0 : 3;
}
