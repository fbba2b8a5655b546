#include "sdk/core/cstr.h"

#include <cstring>
#include <utility>

#include "sdk/core/heap.h"

namespace {

std::size_t LengthOf(const char* text) { return text == nullptr ? 0 : std::strlen(text); }

}  // namespace

CStr::CStr(const char* text) noexcept { Assign(text, LengthOf(text)); }

CStr::CStr(const CStr& other) noexcept { Assign(other.text_, other.length_); }

CStr::CStr(CStr&& other) noexcept
    : text_(std::exchange(other.text_, nullptr)), length_(std::exchange(other.length_, 0)) {}

CStr& CStr::operator=(const CStr& other) noexcept {
  if (this != &other) Assign(other.text_, other.length_);
  return *this;
}

CStr& CStr::operator=(CStr&& other) noexcept {
  std::swap(text_, other.text_);
  std::swap(length_, other.length_);
  return *this;
}

CStr& CStr::operator=(const char* text) noexcept {
  Assign(text, LengthOf(text));
  return *this;
}

CStr::~CStr() { SkelderFree(text_); }

const char* CStr::data() const noexcept { return text_ == nullptr ? "" : text_; }

// The old text is freed last, because `text` may be a part of it.
void CStr::Assign(const char* text, std::size_t length) noexcept {
  char* copy = length > 0 ? static_cast<char*>(SkelderAllocate(length + 1)) : nullptr;
  if (copy != nullptr) {
    std::memcpy(copy, text, length);
    copy[length] = '\0';
  }
  SkelderFree(text_);
  text_ = copy;
  length_ = copy == nullptr ? 0 : length;
}
