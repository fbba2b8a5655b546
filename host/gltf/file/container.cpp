#include "host/gltf/file/container.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "host/gltf/file/base64.h"
#include "host/gltf/file/json_field.h"
#include "host/gltf/file/parsed_json.h"
#include "host/gltf/file/refusal.h"

namespace host::gltf {

namespace {

constexpr std::string_view kGlbMagic = "glTF";
constexpr std::uint32_t kGlbVersion = 2;
constexpr std::uint32_t kJsonChunk = 0x4E4F534A;
constexpr std::uint32_t kBinaryChunk = 0x004E4942;
constexpr std::size_t kHeaderSize = 12;
constexpr std::size_t kChunkHeaderSize = 8;
constexpr std::size_t kChunkAlignment = 4;

void SetWord(std::size_t number, std::size_t offset, std::string& bytes) {
  const auto word = static_cast<std::uint32_t>(number);
  std::memcpy(&bytes[offset], &word, sizeof word);
}

// Fills the chunk whose header is at `start` up to a multiple of four bytes, and its header.
void EndChunk(std::size_t start, std::uint32_t type, char filler, std::string& bytes) {
  while (bytes.size() % kChunkAlignment != 0) bytes += filler;
  SetWord(bytes.size() - start - kChunkHeaderSize, start, bytes);
  SetWord(type, start + sizeof type, bytes);
}

// Stands before data in base64.
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

nlohmann::json ParsedDocument(std::string_view text) {
  return ParsedMembers(text, {"accessors", "asset", "buffers", "bufferViews", "extensions"});
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

void RequireRoom(std::uint64_t bytes, std::uint64_t most) {
  if (bytes > most) throw Refusal("The scene cannot be saved: glTF holds no more than 4 GiB.");
}

std::string BinaryFile(Document document, std::uint64_t most) {
  RequireRoom(document.data.Bytes().size(), most);
  constexpr std::size_t kRoomForTheRest = 1 << 16;
  std::string bytes;
  bytes.reserve(document.Size() + kRoomForTheRest);
  bytes.resize(kHeaderSize + kChunkHeaderSize);
  AppendText(document, "", bytes);
  EndChunk(kHeaderSize, kJsonChunk, ' ', bytes);

  if (!document.data.Bytes().empty()) {
    const std::size_t data_start = bytes.size();
    bytes.resize(data_start + kChunkHeaderSize);
    bytes += document.data.Bytes();
    EndChunk(data_start, kBinaryChunk, '\0', bytes);
  }

  RequireRoom(bytes.size(), most);
  bytes.replace(0, kGlbMagic.size(), kGlbMagic);
  SetWord(kGlbVersion, 4, bytes);
  SetWord(bytes.size(), 8, bytes);
  return bytes;
}

std::string TextFile(Document document, std::uint64_t most) {
  RequireRoom(document.data.Bytes().size(), most);
  std::string text;
  AppendText(document, std::string(kDataPrefix) + EncodedBase64(document.data.Bytes()), text);
  return text;
}

FileParts TakeApart(std::string_view bytes) {
  if (bytes.substr(0, kGlbMagic.size()) == kGlbMagic) return TakeBinaryApart(bytes);
  FileParts parts;
  parts.document = ParsedDocument(bytes);
  parts.embedded = EmbeddedData(JsonField(parts.document, ""));
  return parts;
}

}  // namespace host::gltf
