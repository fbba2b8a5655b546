#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "formats/text/byte_source.h"
#include "formats/text/lines.h"

// What a marker file holds, without reading its numbers. Nothing fails but for want of memory. An
// outliner is for one thread at a time; what it keeps of a file are copies.
namespace orvane {

// Takes the text of a file piece by piece, so that a file of any size needs little memory.
class TRCOutliner {
 public:
  // Takes the next lines of the file. A line is not divided between two calls.
  void Take(std::string_view lines);

  // The lines before the frames; for TRCDocument::ReadBytes.
  const std::string& Header() const { return header_; }

  // Whether it is whole: the next line is none of it.
  bool HasHeader() const;

  // How many lines the reader comes to; not those whose place a comment takes.
  std::size_t Lines() const { return number_; }

  // How many lines the reader takes for frames.
  std::size_t Frames() const { return frames_; }

  // The text of the first of them; empty for none.
  const std::string& FirstFrame() const { return first_frame_; }

 private:
  void TakeLine(const Line& line);

  std::string header_;
  std::size_t frames_ = 0;
  std::string first_frame_;
  std::size_t number_ = 0;    // of the next line, counted from 0
  bool throws_away_ = false;  // the next line
};

// The header of a file whose bytes `source` has, of which little more is read.
[[nodiscard]] std::string TrcHeaderOf(ByteSource& source);

// The text of the first frame of such a file, as TRCOutliner::FirstFrame; little more is read.
[[nodiscard]] std::string TrcFirstFrameOf(ByteSource& source);

}  // namespace orvane
