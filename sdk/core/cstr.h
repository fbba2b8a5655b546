#pragma once

#include <cstddef>

#include "platform/export.h"

// A text that may cross between modules: its bytes lie on the host's heap and its body in the host
// library, so that either side may change or free it. Copies are deep. When the heap is exhausted
// the text becomes empty; nothing is thrown.
class SKELDER_API CStr {
 public:
  CStr() noexcept = default;
  CStr(const char* text) noexcept;  // NOLINT(google-explicit-constructor): as literals are passed
  CStr(const CStr& other) noexcept;
  CStr(CStr&& other) noexcept;
  CStr& operator=(const CStr& other) noexcept;
  CStr& operator=(CStr&& other) noexcept;
  CStr& operator=(const char* text) noexcept;
  ~CStr();

  // The bytes, always terminated; valid until this object changes. Never null.
  const char* data() const noexcept;
  operator const char*() const noexcept { return data(); }  // NOLINT(google-explicit-constructor)

  // Number of bytes before the terminator.
  std::size_t length() const noexcept { return length_; }

 private:
  void Assign(const char* text, std::size_t length) noexcept;

  char* text_ = nullptr;
  std::size_t length_ = 0;
};
