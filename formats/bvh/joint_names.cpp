#include "formats/bvh/joint_names.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

// Beyond ASCII, as UTF-8.
constexpr std::array<std::string_view, 20> kWideBlanks = {
    "\u0085", "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003",
    "\u2004", "\u2005", "\u2006", "\u2007", "\u2008", "\u2009", "\u200A",
    "\u2028", "\u2029", "\u202F", "\u205F", "\u3000", "\uFEFF"};

bool IsPartedAt(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte <= 0x20 || byte == 0x7F || character == '{' || character == '}';
}

// How many bytes at the start of `text` are what words are parted at; 0 when none.
std::size_t SizeOfBlank(std::string_view text) {
  if (IsPartedAt(text.front())) return 1;
  const auto wide =
      std::find_if(kWideBlanks.begin(), kWideBlanks.end(),
                   [text](std::string_view blank) { return text.starts_with(blank); });
  return wide == kWideBlanks.end() ? 0 : wide->size();
}

BvhJointName InOneWord(std::string_view name) {
  if (name.empty()) return {"_", true, false};
  BvhJointName word;
  word.text.reserve(name.size());
  while (!name.empty()) {
    const std::size_t blank = SizeOfBlank(name);
    word.text += blank == 0 ? name.front() : '_';
    word.is_respelled = word.is_respelled || blank != 0;
    name.remove_prefix(std::max<std::size_t>(1, blank));
  }
  return word;
}

}  // namespace

std::vector<BvhJointName> NameJoints(const std::vector<std::string>& names) {
  std::vector<BvhJointName> joints;
  joints.reserve(names.size());
  std::unordered_set<std::string> wanted;  // no number may make one of these
  for (const std::string& name : names) {
    joints.push_back(InOneWord(name));
    wanted.insert(joints.back().text);
  }
  std::unordered_map<std::string, int> uses;
  for (BvhJointName& joint : joints) {
    int& number = uses[joint.text];
    joint.is_numbered = ++number > 1;
    if (!joint.is_numbered) continue;
    std::string numbered = joint.text + "_" + FormatInt(number);
    while (!wanted.insert(numbered).second) numbered = joint.text + "_" + FormatInt(++number);
    joint.text = std::move(numbered);
  }
  return joints;
}

}  // namespace orvane
