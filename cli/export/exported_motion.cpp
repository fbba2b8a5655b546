#include "cli/export/exported_motion.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <unordered_set>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/outputs.h"
#include "cli/export/exported_text.h"
#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/text/files.h"
#include "formats/text/line_pieces.h"
#include "platform/path_text.h"

namespace cli {
namespace {

constexpr std::string_view kEnd = "[EndOfFile]\r\n";

// Behind this only numbers stand behind tabs.
constexpr std::string_view kBasePosition = "\r\n[BasePosition]\r\n";

bool IsComplete(std::string_view bytes) {
  return bytes.size() >= kEnd.size() && bytes.substr(bytes.size() - kEnd.size()) == kEnd;
}

bool HoldsOnlyFiniteNumbers(std::string_view bytes) {
  const std::size_t start = bytes.find(kBasePosition);
  if (start == std::string_view::npos) return true;
  const std::string_view numbers = bytes.substr(start);
  for (const std::string_view other : {"\tinf", "\t-inf", "\tnan", "\t-nan"}) {
    if (numbers.find(other) != std::string_view::npos) return false;
  }
  return true;
}

std::unordered_set<std::string_view> NamesIn(const host::Scene& scene) {
  std::unordered_set<std::string_view> names;
  std::vector<const host::Node*> waiting = {&scene.Root()};
  while (!waiting.empty()) {
    const host::Node* node = waiting.back();
    waiting.pop_back();
    if (!node->IsRoot()) names.insert(node->Name());
    waiting.insert(waiting.end(), node->Children().begin(), node->Children().end());
  }
  return names;
}

// Whether the segments are bones of the scene, in one skeleton, each with its frames, the first of
// which `document` has of `text`. A name that means something in the file makes something else of
// them.
bool IsOneSkeletonOf(const orvane::HtrDocument& document, const ExportedText& text,
                     const host::Scene& scene) {
  const std::vector<std::size_t>& rows = text.Rows();
  const auto is_short = [&](std::size_t count) { return count != document.GetNumFrames(); };
  if (std::any_of(rows.begin(), rows.end(), is_short)) return false;
  const std::unordered_set<std::string_view> names = NamesIn(scene);
  const auto& segments = document.segments();
  const auto fits = [&](const orvane::HtrSegment& segment) {
    return names.count(segment.GetName()) == 1 && segment.GetNumFrames() == 1;
  };
  const auto is_root = [](const orvane::HtrSegment& segment) { return segment.GetIsRoot(); };
  return rows.size() == segments.size() && std::all_of(segments.begin(), segments.end(), fits) &&
         std::count_if(segments.begin(), segments.end(), is_root) == 1;
}

Failure Refusal(const std::string& name, const std::string& text, const std::string& advice) {
  return {ExitStatus::kRefused, {{name, text, advice}}};
}

// What is not there is empty.
ExportedText TextOf(const std::string& path) {
  ExportedText text;
  const std::filesystem::path file = platform::PathOf(path);
  if (!std::filesystem::exists(file)) return text;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::system_error(errno, std::generic_category());
  stream.exceptions(std::ios::badbit);
  orvane::TakeByLines(stream, [&text](std::string_view lines) { text.Take(lines); });
  return text;
}

ExportedMotion Check(const std::string& path, const std::string& name, const host::Scene& scene) {
  const ExportedText text = TextOf(path);
  if (!IsComplete(text.Kept())) {
    throw Failure{ExitStatus::kInputOutput,
                  {{name, "could not be written completely", "Is the disk full?"}}};
  }
  if (!HoldsOnlyFiniteNumbers(text.Kept())) {
    throw Refusal(name, "A number of the skeleton is not finite",
                  "Is --scale or a length in the scene too large?");
  }
  orvane::HtrDocument document;
  const std::string message = orvane::ReadHtrBytes(document, text.Kept(), true);
  // Bytes need no opening: there is no memory for them.
  if (message == orvane::kNotOpened) throw NotReadBackForMemory(name);
  if (!message.empty() || !IsOneSkeletonOf(document, text, scene)) {
    throw Refusal(
        name, "The file would not read back: a name cannot stand in it",
        "A tab, #, ] or a [ at its start in the name of a bone, and names that the file has "
        "a use for, such as GLOBAL and EndOfFile, mean something else there.");
  }
  return {text.Size(), document.GetNumSegments(), document.GetStartFrame(), document.GetNumFrames(),
          document.GetDataFrameRate()};
}

}  // namespace

ExportedMotion CheckExport(const std::string& path, const std::string& name,
                           const host::Scene& scene) {
  return ReadBack(name, [&] { return Check(path, name, scene); });
}

}  // namespace cli
