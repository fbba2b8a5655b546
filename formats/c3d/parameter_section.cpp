#include "formats/c3d/parameter_section.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "formats/c3d/little_endian.h"

namespace orvane {
namespace {

constexpr std::uint32_t kFirstByte = 1;
constexpr std::uint32_t kKey = 0x50;
constexpr std::uint32_t kLittleEndian = 84;
constexpr std::size_t kBlockCount = 2;  // where the section has the number of its blocks
constexpr std::size_t kLinkBytes = 2;

}  // namespace

C3dParameterSection::C3dParameterSection() {
  PutByte(kFirstByte);
  PutByte(kKey);
  PutByte(0);
  PutByte(kLittleEndian);
}

void C3dParameterSection::AddGroup(std::string_view name, std::string_view description) {
  ++groups_;
  // Groups have negative numbers.
  StartRecord(name, 0x100 - groups_, 1 + description.size());
  PutDescription(description);
}

void C3dParameterSection::AddWords(std::string_view name, std::string_view description,
                                   const std::vector<std::uint32_t>& words) {
  std::string data(2 * words.size(), '\0');
  char* end = data.data();
  for (const std::uint32_t word : words) end = WriteWord(word, end);
  std::vector<std::size_t> dimensions;
  if (words.size() != 1) dimensions.push_back(words.size());
  AddParameter(name, description, Type::kWords, dimensions, data);
}

void C3dParameterSection::AddFloat(std::string_view name, std::string_view description,
                                   float value) {
  std::array<char, sizeof(float)> data{};
  WriteFloat(value, data.data());
  AddParameter(name, description, Type::kFloats, {}, {data.data(), data.size()});
}

void C3dParameterSection::AddText(std::string_view name, std::string_view description,
                                  std::string_view text) {
  AddParameter(name, description, Type::kText, {text.size()}, text);
}

void C3dParameterSection::AddTexts(std::string_view name, std::string_view description,
                                   const std::vector<std::string_view>& texts) {
  std::size_t longest = 0;
  for (const std::string_view text : texts) longest = std::max(longest, text.size());
  std::string data;
  data.reserve(longest * texts.size());
  for (const std::string_view text : texts) {
    data.append(text).append(longest - text.size(), ' ');
  }
  AddParameter(name, description, Type::kText, {longest, texts.size()}, data);
}

std::string C3dParameterSection::Finish() {
  WriteWord(0, bytes_.data() + last_link_);  // none is behind the last one
  const std::size_t blocks = (bytes_.size() + kC3dBlock - 1) / kC3dBlock;
  bytes_.resize(blocks * kC3dBlock);
  WriteByte(static_cast<std::uint32_t>(blocks), bytes_.data() + kBlockCount);
  return std::move(bytes_);
}

void C3dParameterSection::AddParameter(std::string_view name, std::string_view description,
                                       Type type, const std::vector<std::size_t>& dimensions,
                                       std::string_view data) {
  assert(data.size() <= kMostDataBytes);
  StartRecord(name, groups_, 2 + dimensions.size() + data.size() + 1 + description.size());
  PutByte(static_cast<std::uint32_t>(type));
  PutByte(static_cast<std::uint32_t>(dimensions.size()));
  for (const std::size_t dimension : dimensions) {
    assert(dimension <= 0xFF);
    PutByte(static_cast<std::uint32_t>(dimension));
  }
  bytes_.append(data);
  PutDescription(description);
}

void C3dParameterSection::StartRecord(std::string_view name, std::uint32_t group,
                                      std::size_t size_behind_link) {
  PutByte(static_cast<std::uint32_t>(name.size()));
  PutByte(group);
  bytes_.append(name);
  last_link_ = bytes_.size();
  PutWord(static_cast<std::uint32_t>(kLinkBytes + size_behind_link));
}

void C3dParameterSection::PutByte(std::uint32_t value) {
  std::array<char, 1> byte{};
  WriteByte(value, byte.data());
  bytes_.append(byte.data(), byte.size());
}

void C3dParameterSection::PutWord(std::uint32_t value) {
  PutByte(value);
  PutByte(value >> 8U);
}

void C3dParameterSection::PutDescription(std::string_view description) {
  PutByte(static_cast<std::uint32_t>(description.size()));
  bytes_.append(description);
}

}  // namespace orvane
