#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Makes compiled resource files byte by byte, apart from the resource compiler and from the code
// that reads them.

namespace test {

class ByteWriter {
 public:
  ByteWriter& U8(unsigned value) {
    bytes_.push_back(static_cast<std::byte>(value & 0xFFU));
    return *this;
  }
  ByteWriter& U16(unsigned value) { return U8(value).U8(value >> 8U); }
  ByteWriter& U32(std::uint32_t value) { return U16(value).U16(value >> 16U); }

  // UTF-16 without an end, with one, and the form in which a number stands for a text.
  ByteWriter& Units(std::u16string_view text) {
    for (const char16_t unit : text) U16(unit);
    return *this;
  }
  ByteWriter& Text(std::u16string_view text) { return Units(text).U16(0); }
  ByteWriter& Number(unsigned number) { return U16(0xFFFF).U16(number); }

  ByteWriter& Append(std::span<const std::byte> bytes) {
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    return *this;
  }
  ByteWriter& Align4() {
    while (bytes_.size() % 4 != 0) U8(0);
    return *this;
  }

  [[nodiscard]] const std::vector<std::byte>& Bytes() const { return bytes_; }

 private:
  std::vector<std::byte> bytes_;
};

using ResourceBytes = std::vector<std::byte>;

// One entry of a resource file. `names` are the type and the name as they stand in the file.
inline ResourceBytes EntryBytes(const ResourceBytes& names, std::span<const std::byte> data) {
  ByteWriter header;
  header.Append(names).Align4();
  header.U32(0).U16(0).U16(0x0409).U32(0).U32(0);  // version, flags, language, ...
  ByteWriter entry;
  entry.U32(static_cast<std::uint32_t>(data.size()));
  entry.U32(static_cast<std::uint32_t>(8 + header.Bytes().size()));
  return entry.Append(header.Bytes()).Append(data).Align4().Bytes();
}

inline ResourceBytes EntryBytes(unsigned type, unsigned id, std::span<const std::byte> data) {
  return EntryBytes(ByteWriter().Number(type).Number(id).Bytes(), data);
}

// The empty entry that every resource file begins with, and then `entries`.
inline ResourceBytes FileBytes(const std::vector<ResourceBytes>& entries) {
  ByteWriter file;
  file.Append(EntryBytes(0, 0, {}));
  for (const ResourceBytes& entry : entries) file.Append(entry);
  return file.Bytes();
}

// A block of sixteen strings.
inline ResourceBytes StringBlockBytes(const std::vector<std::u16string>& strings) {
  ByteWriter block;
  for (const std::u16string& string : strings) {
    block.U16(static_cast<unsigned>(string.size())).Units(string);
  }
  for (std::size_t i = strings.size(); i < 16; ++i) block.U16(0);
  return block.Bytes();
}

// Window classes by their numbers.
inline constexpr unsigned kButton = 0x80;
inline constexpr unsigned kEdit = 0x81;
inline constexpr unsigned kStatic = 0x82;
inline constexpr unsigned kComboBox = 0x85;

struct ControlBytes {
  int id = 0;
  unsigned window_class = kButton;
  std::uint32_t style = 0;
  std::u16string text;
  std::u16string class_name{};  // in place of the number when not empty
};

// The style of a dialog that stands for itself, and of one that is a part of another window.
inline constexpr std::uint32_t kPopupDialog = 0x80C80048;
inline constexpr std::uint32_t kChildDialog = 0x50000048;

// An extended dialog template of 200 by 100 units. Control number i lies at (i, 10 i) and measures
// 40 by 12.
inline ResourceBytes DialogBytes(std::u16string_view title,
                                 const std::vector<ControlBytes>& controls,
                                 std::uint32_t style = kPopupDialog) {
  ByteWriter dialog;
  dialog.U16(1).U16(0xFFFF).U32(0).U32(0).U32(style);
  dialog.U16(static_cast<unsigned>(controls.size()));
  dialog.U16(0).U16(0).U16(200).U16(100);
  dialog.U16(0).U16(0).Text(title);
  dialog.U16(8).U16(400).U8(0).U8(1).Text(u"MS Shell Dlg");
  unsigned i = 0;
  for (const ControlBytes& control : controls) {
    dialog.Align4().U32(0).U32(0).U32(control.style);
    dialog.U16(i).U16(10 * i).U16(40).U16(12);
    dialog.U32(static_cast<std::uint32_t>(control.id));
    if (control.class_name.empty()) {
      dialog.Number(control.window_class);
    } else {
      dialog.Text(control.class_name);
    }
    dialog.Text(control.text).U16(0);
    ++i;
  }
  return dialog.Bytes();
}

inline constexpr unsigned kDialogType = 5;
inline constexpr unsigned kStringType = 6;

}  // namespace test
