#include "host/gltf/file_parts.h"

#include <cstdint>
#include <cstring>

#include "host/gltf/base64.h"
#include "host/gltf/glb_format.h"
#include "host/gltf/json_field.h"
#include "host/gltf/refusal.h"

namespace host::gltf {

namespace {

[[noreturn]] void RefuseCutShort() { throw Refusal("The file is damaged or cut short."); }

std::string_view TakeBytes(std::string_view& bytes, std::size_t count) {
  if (bytes.size() < count) RefuseCutShort();
  const std::string_view taken = bytes.substr(0, count);
  bytes.remove_prefix(count);
  return taken;
}

std::uint32_t TakeWord(std::string_view& bytes) {
  std::uint32_t word = 0;
  std::memcpy(&word, TakeBytes(bytes, sizeof word).data(), sizeof word);
  return word;
}

std::string_view TakeChunk(std::string_view& bytes, std::uint32_t type) {
  const std::uint32_t size = TakeWord(bytes);
  if (TakeWord(bytes) != type) RefuseCutShort();
  return TakeBytes(bytes, size);
}

nlohmann::json ParsedDocument(std::string_view text) {
  return ParsedMembers(text, {"accessors", "buffers", "bufferViews", "extensions"});
}

FileParts TakeBinaryApart(std::string_view bytes) {
  const std::size_t size = bytes.size();
  TakeBytes(bytes, kGlbMagic.size());
  if (TakeWord(bytes) != kGlbVersion) throw Refusal("The file is no glTF 2.0 file.");
  if (TakeWord(bytes) != size) RefuseCutShort();
  FileParts parts;
  parts.document = ParsedDocument(TakeChunk(bytes, kJsonChunk));
  if (!bytes.empty()) parts.chunk = TakeChunk(bytes, kBinaryChunk);
  return parts;
}

// The data that the first buffer holds as text.
std::string EmbeddedData(const JsonField& document) {
  const auto buffers = document.FindMember("buffers");
  if (!buffers || buffers->Size() == 0) return "";
  const JsonField uri = buffers->Element(0).Member("uri");
  const std::string_view text = uri.Text();
  if (text.substr(0, kDataPrefix.size()) != kDataPrefix) uri.Refuse("no embedded data");
  auto data = DecodedBase64(text.substr(kDataPrefix.size()));
  if (!data) uri.Refuse("damaged or cut short");
  return *std::move(data);
}

}  // namespace

FileParts TakeApart(std::string_view bytes) {
  if (bytes.substr(0, kGlbMagic.size()) == kGlbMagic) return TakeBinaryApart(bytes);
  FileParts parts;
  parts.document = ParsedDocument(bytes);
  parts.embedded = EmbeddedData(JsonField(parts.document, ""));
  return parts;
}

}  // namespace host::gltf
