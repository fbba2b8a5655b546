#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

// What joints can be called in a file whose readers part words at blanks and at braces.
namespace orvane {

struct BvhJointName {
  std::string text;
  bool is_respelled = false;  // for blanks or braces in it, or since it was empty
  bool is_numbered = false;   // since a joint before it is called the same
};

// `names` as joints, each another. Whatever a reader may part words at becomes `_`: the blanks of
// Unicode, control characters and braces; and so does an empty name. Of joints that are called the
// same the second is `name_2`, or has the next number that makes a name of its own. Other bytes
// stay. Takes linear time.
[[nodiscard]] std::vector<BvhJointName> NameJoints(const std::vector<std::string>& names);

}  // namespace orvane
