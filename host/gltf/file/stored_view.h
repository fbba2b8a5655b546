#pragma once

#include <cstddef>
#include <string_view>

#include "host/gltf/file/container.h"
#include "host/gltf/file/json_field.h"

// The way from an index in a file to what it stands for. The bytes stay the file's.

namespace host::gltf {

struct ListedElement {
  std::size_t index;
  JsonField field;
};

// The element of the list `name` of the document of `file` that `reference` is the index of. Throws
// a Refusal when there is none.
ListedElement ElementOf(const FileParts& file, const char* name, const JsonField& reference);

// A size or an offset of the document, no larger than `most`. Throws a Refusal when it is none.
std::size_t Extent(const JsonField& field, std::size_t most);

// `bytes` from the offset on that `field` tells. Throws a Refusal when it lies behind them.
std::string_view BytesBehind(const JsonField& field, std::string_view bytes);

// The bytes of the view of `file` that `reference` is the index of, valid as long as the file's.
// Throws a Refusal when it refers to nothing, or to more than the file holds.
std::string_view StoredView(const FileParts& file, const JsonField& reference);

}  // namespace host::gltf
