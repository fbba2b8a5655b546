#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "inspect/check/findings.h"

// The time column of a TRC file, which the reader does not read: frames follow each other at the
// rate of the header. Times are in seconds, frames count from 0; nothing fails but for want of
// memory.

namespace orvane::trc {

// Compares the times of frames, one after the other, with what the rate makes of them.
class TimeColumn {
 public:
  // In frames per second; nothing is compared with one that is not above 0.
  void SetRate(double rate) { rate_ = rate; }

  // `rest` is the line of `frame`, behind the tab before its time, or longer. What is no number
  // is passed over, but in the first frame.
  void Take(std::string_view rest, std::size_t frame, const FindingPlace& place);

  // Adds what the first frame has in the place of a number of seconds, such as a time code; or else
  // where the column is first too far from the rate, but nothing when it says the same time in all
  // frames, as if it was never filled in.
  void AddTo(FindingList& findings) const;

 private:
  struct Moment {
    double seconds = 0.0;
    std::size_t frame = 0;
  };
  struct Contradiction {
    FindingPlace place;
    double seconds = 0.0;
    double by_rate = 0.0;
  };

  struct NoNumber {
    FindingPlace place;
    std::string text;
  };

  void TakeFirst(std::string_view rest, const FindingPlace& place);

  double rate_ = 0.0;
  std::optional<NoNumber> no_number_;
  std::optional<Moment> first_;
  bool changes_ = false;
  std::optional<Contradiction> contradiction_;
};

}  // namespace orvane::trc
