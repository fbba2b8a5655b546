#include "formats/text/text_buffer.h"

#include <algorithm>
#include <charconv>

namespace orvane {

void TextBuffer::Put(std::string_view text) {
  while (text.size() > Room()) {
    const std::size_t fitting = Room();
    end_ = std::copy_n(text.data(), fitting, end_);
    text.remove_prefix(fitting);
    HandOver();
  }
  end_ = std::copy(text.begin(), text.end(), end_);
}

void TextBuffer::PutInteger(std::int64_t number) {
  MakeRoom(kLongestInteger);
  end_ = std::to_chars(end_, end_ + kLongestInteger, number).ptr;
}

void TextBuffer::HandOver() {
  take_(std::string_view(bytes_.data(), static_cast<std::size_t>(end_ - bytes_.data())));
  end_ = bytes_.data();
}

}  // namespace orvane
