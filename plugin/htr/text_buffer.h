#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "plugin/text/six_decimals.h"

// Collects the text of a motion file and hands it on in pieces. Belongs to the writer, which spends
// most of its time here.
namespace orvane {

class HtrTextBuffer {
 public:
  // Nothing is handed to `take`, which must outlive the buffer, before a piece is full or HandOver
  // is called.
  explicit HtrTextBuffer(const std::function<void(std::string_view bytes)>& take)
      : take_(take), bytes_(kSize), end_(bytes_.data()) {}
  HtrTextBuffer(const HtrTextBuffer&) = delete;
  HtrTextBuffer& operator=(const HtrTextBuffer&) = delete;

  void Put(std::string_view text);
  void PutInteger(std::int64_t number);

  // A tab and a number with six decimals.
  void PutColumn(double number) {
    MakeRoom(kLongestColumn);
    *end_++ = '\t';
    end_ = WriteSixDecimals(number, end_);
  }

  // Lines end with CR LF on every system.
  void EndLine() { Put("\r\n"); }
  void PutLine(std::string_view text) {
    Put(text);
    EndLine();
  }

  // Hands over what has been put since the last time.
  void HandOver();

 private:
  static constexpr std::size_t kSize = std::size_t{64} * 1024;
  static constexpr std::size_t kLongestInteger = 20;
  static constexpr std::size_t kLongestColumn = 1 + kLongestSixDecimals;

  std::size_t Room() const {
    return static_cast<std::size_t>(bytes_.data() + bytes_.size() - end_);
  }
  void MakeRoom(std::size_t size) {
    if (Room() < size) HandOver();
  }

  const std::function<void(std::string_view bytes)>& take_;
  std::vector<char> bytes_;
  char* end_;  // behind the last byte that was put
};

}  // namespace orvane
