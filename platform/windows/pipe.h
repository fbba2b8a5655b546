#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Messages between two processes, through a pipe of the system's.

namespace platform {

// A handle of the system's that is closed with this object.
class OwnedHandle {
 public:
  explicit OwnedHandle(HANDLE handle = nullptr) : handle_(handle) {}
  OwnedHandle(OwnedHandle&& other) noexcept : handle_(other.Release()) {}
  OwnedHandle& operator=(OwnedHandle&& other) noexcept;
  ~OwnedHandle();

  [[nodiscard]] HANDLE Get() const { return handle_; }
  HANDLE Release();

 private:
  HANDLE handle_;  // null when it owns none
};

struct Pipe {
  OwnedHandle reader;
  OwnedHandle writer;
};

// A pipe whose ends new processes do not get, or nothing.
[[nodiscard]] std::optional<Pipe> MakePipe();

// Writes a number, or a number of bytes and these. Returns false when nobody reads.
[[nodiscard]] bool SendNumber(HANDLE writer, std::uint64_t number);
[[nodiscard]] bool SendBytes(HANDLE writer, std::string_view bytes);

// What the other end has sent with the namesake, once all of it is there; nothing when that end is
// closed before.
[[nodiscard]] std::optional<std::uint64_t> ReceiveNumber(HANDLE reader);
[[nodiscard]] std::optional<std::string> ReceiveBytes(HANDLE reader);

}  // namespace platform
