#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// Dialog templates: a dialog as it stands in a resource file, before anybody has used it.
// Building a dialog from its template is the desktop's job.

namespace platform {

// What a control is to the user, told from its window class and its style.
enum class ControlKind {
  kPushButton,
  kCheckBox,
  kRadioButton,
  kGroupBox,
  kEdit,
  kLabel,
  kImage,
  kOther,  // a window class that the program brings itself
};

// A rectangle in dialog units: x and width in quarters of the font's average width, y and height
// in eighths of its height. Controls count from the upper left corner of their dialog.
struct DialogRectangle {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

struct ControlTemplate {
  int id = 0;  // -1 for controls that nobody asks for
  ControlKind kind = ControlKind::kOther;
  std::uint32_t style = 0;   // the system's own style bits
  std::string text;          // UTF-8; an ampersand stands before the mnemonic
  std::string window_class;  // kOther: the name of the window class, empty for a numbered one
  DialogRectangle area;
};

struct DialogTemplate {
  std::string title;  // UTF-8
  DialogRectangle area;
  std::uint32_t style = 0;                // the system's own style bits
  std::vector<ControlTemplate> controls;  // in tab order
};

// Style bits that a desktop looks at.
inline constexpr std::uint32_t kStyleDisabled = 0x08000000;
inline constexpr std::uint32_t kStyleGroup = 0x00020000;
inline constexpr std::uint32_t kStyleTabStop = 0x00010000;
inline constexpr std::uint32_t kStyleChild = 0x40000000;     // part of another window
inline constexpr std::uint32_t kStyleCloseBox = 0x00080000;  // of a dialog with a frame
inline constexpr std::uint32_t kStyleReadOnly = 0x0800;      // of an edit control

// Reads the bytes of an extended dialog resource (DIALOGEX).
// Returns nothing when they are cut short or another kind of resource.
[[nodiscard]] std::optional<DialogTemplate> ParseDialogTemplate(std::span<const std::byte> bytes);

}  // namespace platform
