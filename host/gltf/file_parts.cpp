#include "host/gltf/file_parts.h"

#include <cstdint>
#include <cstring>

#include "host/gltf/base64.h"
#include "host/gltf/json_field.h"
#include "host/gltf/refusal.h"

namespace host::gltf {

namespace {

constexpr std::string_view kMagic = "glTF";
constexpr std::uint32_t kContainerVersion = 2;
constexpr std::uint32_t kJsonChunk = 0x4E4F534A;
constexpr std::uint32_t kBinaryChunk = 0x004E4942;
constexpr std::string_view kDataPrefix = "data:application/octet-stream;base64,";

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

FileParts TakeBinaryApart(std::string_view bytes) {
  const std::size_t size = bytes.size();
  TakeBytes(bytes, kMagic.size());
  if (TakeWord(bytes) != kContainerVersion) throw Refusal("The file is no glTF 2.0 file.");
  if (TakeWord(bytes) != size) RefuseCutShort();
  FileParts parts;
  parts.document = ParsedJson(TakeChunk(bytes, kJsonChunk));
  if (!bytes.empty()) parts.binary = TakeChunk(bytes, kBinaryChunk);
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
  if (bytes.substr(0, kMagic.size()) == kMagic) return TakeBinaryApart(bytes);
  FileParts parts;
  parts.document = ParsedJson(bytes);
  parts.binary = EmbeddedData(JsonField(parts.document, ""));
  return parts;
}

}  // namespace host::gltf
