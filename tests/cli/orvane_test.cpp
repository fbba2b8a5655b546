#include "tests/cli/orvane_test.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <sstream>

namespace test {

ProgramRun OrvaneTest::Command(const std::vector<std::string>& arguments) const {
  ProgramRun run;
  run.command = {ORVANE_BINARY_DIR "/bin/orvane"};
  run.command.insert(run.command.end(), arguments.begin(), arguments.end());
  run.folder = folder_.Path().string();
  run.environment = {"XDG_CONFIG_HOME=" + folder_.File("config"),
                     "ORVANE_WORKBENCH=" ORVANE_SOURCE_DIR "/tests/data/workbench.html"};
  return run;
}

std::string OrvaneTest::ReadText(const std::string& name) const {
  const std::regex moment("[A-Z][a-z]{2} [A-Z][a-z]{2} [ 0-9][0-9] [0-9:]{8} [0-9]{4}");
  return std::regex_replace(ReadTextFile(folder_.File(name)), moment, "TIME");
}

std::string SmallMotion() {
  return "[Header]\n"
         "FileType HTR\nDataType HTRS\nFileVersion 1\nNumSegments 2\nNumFrames 3\n"
         "DataFrameRate 60\nEulerRotationOrder ZYX\nCalibrationUnits mm\nRotationUnits Degrees\n"
         "GlobalAxisofGravity Y\nBoneLengthAxis Y\nScaleFactor 1.0\n"
         "[SegmentNames&Hierarchy]\nHips GLOBAL\nSpine Hips\n"
         "[BasePosition]\nHips 0 900 0 0 0 0 100\nSpine 0 100 0 0 0 0 250.5\n"
         "[Hips]\n1 0 0 0 0 0 0 1\n2 10 0 0 0 0 90 1\n3 20 0 0 0 0 0 1\n"
         "[Spine]\n1 0 0 0 0 0 0 1\n2 0 0 0 0 0 0 1\n3 0 0 0 10 0 0 1\n"
         "[EndOfFile]\n";
}

std::string HurriedModule() {
  return ORVANE_BINARY_DIR "/tests/hurried_module" ORVANE_MODULE_SUFFIX;
}

std::vector<std::string> CodesIn(const std::string& error) {
  static const std::regex finding("orvane: .*: (?:note|warning|error): .* \\[([a-z-]+)\\]");
  std::vector<std::string> codes;
  std::istringstream lines(error);
  std::smatch match;
  for (std::string line; std::getline(lines, line);) {
    codes.push_back(std::regex_match(line, match, finding) ? std::string(match[1]) : line);
  }
  return codes;
}

std::string Slashed(std::string text) {
  constexpr char kSlash = static_cast<char>(std::filesystem::path::preferred_separator);
  std::replace(text.begin(), text.end(), kSlash, '/');
  return text;
}

}  // namespace test
