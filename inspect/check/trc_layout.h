#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "formats/trc/read_observer.h"

// What is wrong with the way the first lines of a TRC file are laid out, where the reader meets
// only what follows from it in every frame. Lines, columns and fields count from 1; nothing is kept
// of the bytes but views into them, and nothing fails.

namespace orvane::trc {

// A name where the reader looks for none. It takes a name three tabs behind the last, and nothing
// that stands between.
struct MisplacedName {
  TRCPlace place;
  std::string_view name;
  std::string_view previous;  // the name before it, or a heading
  std::size_t tabs = 0;       // between the two
};

struct TrcLayout {
  // The first one, when names are missing where they are looked for: one that stands beside a good
  // name is a remark.
  std::optional<MisplacedName> misplaced_name;
  // The first name, when it is a heading of coordinates, as the next field is.
  std::optional<TRCPlace> headings_for_names;
  // The line where the blank one belongs, when it holds but tabs: the reader takes it for a
  // frame.
  std::optional<TRCPlace> frame_of_tabs;
};

// The layout of the file that is, or starts with, `bytes`.
[[nodiscard]] TrcLayout FindLayout(std::string_view bytes);

}  // namespace orvane::trc
