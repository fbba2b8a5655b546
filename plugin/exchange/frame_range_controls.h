#pragma once

#include <cstdint>
#include <string>

#include "platform/dialog.h"

// The controls "From", "To" and "Offset" of the option dialogs.
namespace orvane {

// The frame numbers of an option record that the controls show and change.
struct FrameRange {
  std::int32_t& start;  // also the least number that "From" may have
  std::int32_t& end;    // also the greatest that "To" may have
  std::int32_t& offset;
};

void FillFrameRange(platform::Dialog& dialog, const FrameRange& range);

// Enables or disables "From" and "To".
void EnableFrameRange(platform::Dialog& dialog, bool enabled);

// Takes over what the controls hold, one after the other. A frame beyond its bound is put back and
// ends it. Returns what to tell the user then, an empty text otherwise.
// Intended: a frame that is accepted is the bound of the next attempt, even when a later check
// refuses this one; the range only ever narrows while the dialog is open.
std::string ReadFrameRange(platform::Dialog& dialog, const FrameRange& range);

// What to tell the user when the range ends before it starts; an empty text otherwise.
// Intended: equal frames pass, whatever the words say.
std::string CheckFrameOrder(const FrameRange& range);

}  // namespace orvane
