#include "platform/dialog_template.h"

#include <utility>

#include "platform/byte_reader.h"
#include "platform/resource_text.h"

namespace platform {
namespace {

constexpr std::uint16_t kExtendedVersion = 1;
constexpr std::uint16_t kExtendedSignature = 0xFFFF;
constexpr std::uint32_t kStyleHasFont = 0x40;

// The numbers that stand for the system's own window classes.
constexpr std::uint16_t kButtonClass = 0x80;
constexpr std::uint16_t kEditClass = 0x81;
constexpr std::uint16_t kStaticClass = 0x82;

// The low bits of the style tell what kind of button or label a control is.
ControlKind KindOfButton(std::uint32_t style) {
  switch (style & 0x0FU) {
    case 0:  // push button
    case 1:  // default push button
      return ControlKind::kPushButton;
    case 2:  // check box
    case 3:  // automatic check box
      return ControlKind::kCheckBox;
    case 4:  // radio button
    case 9:  // automatic radio button
      return ControlKind::kRadioButton;
    case 7:
      return ControlKind::kGroupBox;
    default:
      return ControlKind::kOther;
  }
}

ControlKind KindOfStatic(std::uint32_t style) {
  constexpr std::uint32_t kBitmap = 0x0E;
  return (style & 0x1FU) == kBitmap ? ControlKind::kImage : ControlKind::kLabel;
}

ControlKind KindOf(const ResourceName& window_class, std::uint32_t style) {
  switch (window_class.number.value_or(0)) {
    case kButtonClass:
      return KindOfButton(style);
    case kEditClass:
      return ControlKind::kEdit;
    case kStaticClass:
      return KindOfStatic(style);
    default:
      return ControlKind::kOther;
  }
}

int ReadSigned16(ByteReader& reader) { return static_cast<std::int16_t>(reader.Read16()); }

DialogRectangle ReadRectangle(ByteReader& reader) {
  DialogRectangle area;
  area.x = ReadSigned16(reader);
  area.y = ReadSigned16(reader);
  area.width = ReadSigned16(reader);
  area.height = ReadSigned16(reader);
  return area;
}

void SkipFont(ByteReader& reader) {
  reader.Read16();  // size
  reader.Read16();  // weight
  reader.Read8();   // italic
  reader.Read8();   // character set
  ReadText(reader);
}

ControlTemplate ReadControl(ByteReader& reader) {
  ControlTemplate control;
  reader.Align(4);
  reader.Read32();  // help
  reader.Read32();  // extended style
  control.style = reader.Read32();
  control.area = ReadRectangle(reader);
  control.id = static_cast<int>(reader.Read32());
  ResourceName window_class = ReadName(reader);
  control.kind = KindOf(window_class, control.style);
  control.window_class = std::move(window_class.text);
  control.text = ReadName(reader).text;
  reader.Take(reader.Read16());  // creation data
  return control;
}

}  // namespace

std::optional<DialogTemplate> ParseDialogTemplate(std::span<const std::byte> bytes) {
  ByteReader reader(bytes);
  if (reader.Read16() != kExtendedVersion || reader.Read16() != kExtendedSignature) return {};

  DialogTemplate dialog;
  reader.Read32();  // help
  reader.Read32();  // extended style
  dialog.style = reader.Read32();
  const std::uint16_t control_count = reader.Read16();
  dialog.area = ReadRectangle(reader);
  ReadName(reader);  // menu
  ReadName(reader);  // window class
  dialog.title = ReadText(reader);
  if ((dialog.style & kStyleHasFont) != 0) SkipFont(reader);

  for (std::uint16_t i = 0; i < control_count && !reader.Failed(); ++i) {
    dialog.controls.push_back(ReadControl(reader));
  }
  if (reader.Failed()) return {};
  return dialog;
}

}  // namespace platform
