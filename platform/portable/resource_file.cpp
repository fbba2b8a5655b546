#include "platform/portable/resource_file.h"

#include "platform/byte_reader.h"
#include "platform/resource_text.h"

namespace platform {
namespace {

constexpr unsigned int kStringsPerBlock = 16;

struct ResourceEntry {
  ResourceName type;
  ResourceName name;
  std::span<const std::byte> data;
};

// Reads one entry: its header, which begins with the sizes of the data and of itself, and the data.
ResourceEntry ReadEntry(ByteReader& reader) {
  const std::uint32_t data_size = reader.Read32();
  const std::uint32_t header_size = reader.Read32();
  constexpr std::uint32_t kSizesSize = 8;
  ByteReader header(reader.Take(header_size < kSizesSize ? 0 : header_size - kSizesSize));
  ResourceEntry entry;
  entry.type = ReadName(header);
  entry.name = ReadName(header);
  entry.data = reader.Take(data_size);
  reader.Align(4);
  return entry;
}

bool IsNumber(const ResourceName& name, unsigned int number) {
  return name.number.has_value() && *name.number == number;
}

}  // namespace

std::span<const std::byte> FindResource(std::span<const std::byte> file, ResourceType type,
                                        unsigned int id) {
  ByteReader reader(file);
  while (!reader.AtEnd()) {
    const ResourceEntry entry = ReadEntry(reader);
    if (reader.Failed()) break;
    if (IsNumber(entry.type, static_cast<unsigned int>(type)) && IsNumber(entry.name, id)) {
      return entry.data;
    }
  }
  return {};
}

// Strings lie in numbered blocks of sixteen, each with its length before it; an absent one is
// empty.
std::string FindString(std::span<const std::byte> file, unsigned int id) {
  ByteReader block(FindResource(file, ResourceType::kString, id / kStringsPerBlock + 1));
  for (unsigned int i = 0; i < id % kStringsPerBlock; ++i)
    block.Take(std::size_t{block.Read16()} * 2);
  return Utf8FromUtf16(block.Take(std::size_t{block.Read16()} * 2));
}

std::optional<DialogTemplate> FindDialog(std::span<const std::byte> file, unsigned int id) {
  return ParseDialogTemplate(FindResource(file, ResourceType::kDialog, id));
}

}  // namespace platform
