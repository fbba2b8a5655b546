#include "host/gltf/file/stored_view.h"

#include <cstdint>
#include <string>

namespace host::gltf {

ListedElement ElementOf(const FileParts& file, const char* name, const JsonField& reference) {
  const auto list = JsonField(file.document, "").FindMember(name);
  const std::size_t size = list ? list->Size() : 0;
  if (size == 0) reference.Refuse(std::string("an index, but the file has no ") + name);
  const auto index =
      static_cast<std::size_t>(reference.Whole(0, static_cast<std::int64_t>(size) - 1));
  return {index, list->Element(index)};
}

std::size_t Extent(const JsonField& field, std::size_t most) {
  return static_cast<std::size_t>(field.Whole(0, static_cast<std::int64_t>(most)));
}

std::string_view BytesBehind(const JsonField& field, std::string_view bytes) {
  const auto offset = field.FindMember("byteOffset");
  return bytes.substr(offset ? Extent(*offset, bytes.size()) : 0);
}

std::string_view StoredView(const FileParts& file, const JsonField& reference) {
  const JsonField view = ElementOf(file, "bufferViews", reference).field;
  view.Member("buffer").Whole(0, 0);
  const std::string_view bytes = BytesBehind(view, file.Binary());
  return bytes.substr(0, Extent(view.Member("byteLength"), bytes.size()));
}

}  // namespace host::gltf
