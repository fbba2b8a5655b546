#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "formats/text/lines.h"
#include "formats/trc/read_observer.h"

// What is wrong with the way the first lines of a TRC file are laid out, where the reader meets
// only what follows from it in every frame. Lines, columns and fields count from 1; nothing fails
// but for want of memory.

namespace orvane::trc {

// A name where the reader looks for none. It takes a name three tabs behind the last, and nothing
// that stands between.
struct MisplacedName {
  TRCPlace place;
  std::string name;
  std::string previous;  // the name before it, or a heading
  std::size_t tabs = 0;  // between the two
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

  // Takes one of the first six lines of a file, counted from 0.
  void TakeHeaderLine(std::size_t number, const Line& line);
};

}  // namespace orvane::trc
