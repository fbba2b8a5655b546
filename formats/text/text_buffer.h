#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "formats/text/number_form.h"
#include "formats/text/six_decimals.h"
#include "formats/text/text_taker.h"

// Collects the text of a long file and hands it on in pieces, for writers that spend most of their
// time on the numbers in it.
namespace orvane {

class TextBuffer {
 public:
  // As many numbers get room at once.
  static constexpr std::size_t kMostColumns = 16;

  // Nothing is handed to `take`, which must outlive the buffer, before a piece is full or HandOver
  // is called.
  explicit TextBuffer(const TextTaker& take) : take_(take), bytes_(kSize), end_(bytes_.data()) {}
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;

  void Put(std::string_view text);
  void Put(char character) {
    MakeRoom(1);
    *end_++ = character;
  }
  void PutInteger(std::int64_t number);
  // Each as "%f" prints it, behind a tab.
  // REQUIRES: at most kMostColumns.
  void PutColumns(std::span<const double> numbers) {
    assert(numbers.size() <= kMostColumns);
    MakeRoom(numbers.size() * kLongestColumn);
    end_ = WriteColumns(numbers, end_);
  }

  // Each in that form, behind a tab.
  void PutColumns(std::span<const double> numbers, const NumberForm& form) {
    for (const double number : numbers) {
      Put('\t');
      PutNumber(number, form);
    }
  }
  void PutNumber(double number, const NumberForm& form) {
    MakeRoom(NumberForm::kLongest);
    end_ = form.Write(number, end_);
  }

  // Hands over what has been put since the last time.
  void HandOver();

 private:
  static constexpr std::size_t kSize = std::size_t{256} * 1024;
  static constexpr std::size_t kLongestInteger = 20;
  static_assert(kSize >= kMostColumns * kLongestColumn);

  std::size_t Room() const {
    return static_cast<std::size_t>(bytes_.data() + bytes_.size() - end_);
  }
  void MakeRoom(std::size_t size) {
    if (Room() < size) HandOver();
  }

  const TextTaker& take_;
  std::vector<char> bytes_;
  char* end_;  // behind the last byte that was put
};

}  // namespace orvane
