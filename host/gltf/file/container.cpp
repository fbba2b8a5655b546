#include "host/gltf/file/container.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

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

void AppendWord(std::uint64_t number, Output& output) {
  const auto word = static_cast<std::uint32_t>(number);
  output.Append({reinterpret_cast<const char*>(&word), sizeof word});
}

// What a chunk of `size` bytes lacks to a multiple of four.
std::size_t FillOf(std::uint64_t size) {
  return (kChunkAlignment - size % kChunkAlignment) % kChunkAlignment;
}

// Appends the chunk of the `size` bytes that `append` does.
template <typename Append>
void AppendChunk(std::uint64_t size, std::uint32_t type, char filler, const Append& append,
                 Output& output) {
  AppendWord(size + FillOf(size), output);
  AppendWord(type, output);
  append();
  output.Append(std::string(FillOf(size), filler));
}

std::uint64_t ChunkSize(std::uint64_t size) { return kChunkHeaderSize + size + FillOf(size); }

// Stands before data in base64, where others may write another kind.
constexpr std::string_view kDataPrefix = "data:application/octet-stream;base64,";
constexpr std::string_view kBase64Mark = ";base64,";

// Passes on as base64 what it takes, whose pieces but the last are of whole groups of three bytes.
class Base64Sink final : public FileSink {
 public:
  explicit Base64Sink(Output& text) : text_(text) {}

  bool Take(std::string_view bytes) override {
    text_.Append(EncodedBase64(bytes));
    return true;
  }

 private:
  Output& text_;
};

void AppendEmbedded(const BinaryData& data, Output& text) {
  static_assert(Output::kPieceSize % 3 == 0);
  text.Append(kDataPrefix);
  Base64Sink sink(text);
  Output output(sink);
  data.AppendTo(output);
  output.End();
}

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

// Throws a Refusal when the document has its data elsewhere.
void RequireData(const JsonField& uri) {
  if (uri.Text().starts_with("data:")) return;
  throw Refusal("The data of the file is in another one, \"" + uri.Text() +
                "\": save it as one file, .glb, or with the data embedded.");
}

std::optional<JsonField> FirstUri(const JsonField& document) {
  const auto buffers = document.FindMember("buffers");
  if (!buffers || buffers->Size() == 0) return std::nullopt;
  return buffers->Element(0).FindMember("uri");
}

FileParts TakeBinaryApart(std::string_view bytes, const std::set<std::string>& members) {
  const std::size_t size = bytes.size();
  TakeBytes(bytes, kGlbMagic.size());
  if (TakeWord(bytes) != kGlbVersion) throw Refusal("The file is no glTF 2.0 file.");
  if (TakeWord(bytes) != size) RefuseCutShort();
  FileParts parts;
  parts.document = ParsedMembers(TakeChunk(bytes, kJsonChunk), members);
  if (!bytes.empty()) parts.chunk = TakeChunk(bytes, kBinaryChunk);
  if (parts.chunk.empty()) {
    if (const auto uri = FirstUri(JsonField(parts.document, ""))) RequireData(*uri);
  }
  return parts;
}

// The data that the first buffer holds as text.
std::string EmbeddedData(const JsonField& document) {
  const auto buffers = document.FindMember("buffers");
  if (!buffers || buffers->Size() == 0) return "";
  const JsonField uri = buffers->Element(0).Member("uri");
  RequireData(uri);
  const std::string_view text = uri.Text();
  const std::size_t mark = text.find(kBase64Mark);
  auto data = mark == std::string_view::npos
                  ? std::nullopt
                  : DecodedBase64(text.substr(mark + kBase64Mark.size()));
  if (!data) uri.Refuse("damaged or cut short");
  return *std::move(data);
}

}  // namespace

void RequireRoom(std::uint64_t bytes, std::uint64_t most) {
  if (bytes > most) throw Refusal("The scene cannot be saved: glTF holds no more than 4 GiB.");
}

void WriteBinary(const Document& document, std::uint64_t most, FileSink& file) {
  const BinaryData& data = document.data;
  RequireRoom(data.Size(), most);
  const auto append_json = [&](Output& output) { AppendText(document, nullptr, output); };
  const std::uint64_t json_size = SizeOf(append_json);
  const bool has_data = data.Size() > 0;
  const std::uint64_t size =
      kHeaderSize + ChunkSize(json_size) + (has_data ? ChunkSize(data.Size()) : 0);
  RequireRoom(size, most);

  Output output(file);
  output.Append(kGlbMagic);
  AppendWord(kGlbVersion, output);
  AppendWord(size, output);
  AppendChunk(
      json_size, kJsonChunk, ' ', [&] { append_json(output); }, output);
  if (has_data) {
    AppendChunk(
        data.Size(), kBinaryChunk, '\0', [&] { data.AppendTo(output); }, output);
  }
  output.End();
}

void WriteText(const Document& document, std::uint64_t most, FileSink& file) {
  RequireRoom(document.data.Size(), most);
  Output output(file);
  AppendText(
      document, [&](Output& text) { AppendEmbedded(document.data, text); }, output);
  output.End();
}

FileParts TakeApart(std::string_view bytes, const std::set<std::string>& members) {
  if (bytes.substr(0, kGlbMagic.size()) == kGlbMagic) return TakeBinaryApart(bytes, members);
  FileParts parts;
  parts.document = ParsedMembers(bytes, members);
  parts.embedded = EmbeddedData(JsonField(parts.document, ""));
  return parts;
}

}  // namespace host::gltf
