#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "host/gltf/file/container.h"
#include "host/gltf/file/json_field.h"
#include "sdk/core/types.h"

// The numbers of a file that is being read, as far as they are ours. What controllers they are for
// is told by the records. The bytes stay the file's.

namespace host::gltf {

// The keys that a file keeps. All values are taken one after the other, and all angles; ticks may
// be used again. Everything throws a Refusal when it is not there.
class StoredKeys {
 public:
  // Looks up the accessors that `extension`, the one of `file`, names. `file` outlives this.
  StoredKeys(const FileParts& file, const JsonField& extension);

  // The components of the next values, `width` for each key. `count` is the field with the number
  // of keys.
  // REQUIRES: `width` is 3 or 4.
  std::vector<float> TakeValues(const JsonField& count, std::size_t width);

  // The same of angles, three for each key, in radians.
  std::vector<double> TakeAngles(const JsonField& count);

  // `count` ticks, which rise, from the one on that `first` is the index of.
  std::vector<TimeValue> Ticks(const JsonField& first, std::size_t count) const;

 private:
  std::string_view ticks_;
  std::string_view vectors_;
  std::string_view rotations_;
  std::string_view angles_;
};

}  // namespace host::gltf
