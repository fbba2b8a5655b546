#include "platform/windows/pipe.h"

#include <algorithm>
#include <utility>

namespace platform {
namespace {

constexpr std::size_t kMostAtOnce = std::size_t{1} << 20U;

bool WriteAll(HANDLE writer, const char* bytes, std::size_t size) {
  while (size > 0) {
    DWORD written = 0;
    const auto wanted = static_cast<DWORD>(std::min(size, kMostAtOnce));
    if (WriteFile(writer, bytes, wanted, &written, nullptr) == 0) return false;
    bytes += written;
    size -= written;
  }
  return true;
}

bool ReadAll(HANDLE reader, char* bytes, std::size_t size) {
  while (size > 0) {
    DWORD received = 0;
    const auto wanted = static_cast<DWORD>(std::min(size, kMostAtOnce));
    if (ReadFile(reader, bytes, wanted, &received, nullptr) == 0 || received == 0) return false;
    bytes += received;
    size -= received;
  }
  return true;
}

}  // namespace

OwnedHandle& OwnedHandle::operator=(OwnedHandle&& other) noexcept {
  OwnedHandle old(std::exchange(handle_, other.Release()));
  return *this;
}

OwnedHandle::~OwnedHandle() {
  if (handle_ != nullptr) CloseHandle(handle_);
}

HANDLE OwnedHandle::Release() { return std::exchange(handle_, nullptr); }

std::optional<Pipe> MakePipe() {
  HANDLE reader = nullptr;
  HANDLE writer = nullptr;
  if (CreatePipe(&reader, &writer, nullptr, 0) == 0) return {};
  return Pipe{OwnedHandle(reader), OwnedHandle(writer)};
}

bool SendNumber(HANDLE writer, std::uint64_t number) {
  return WriteAll(writer, reinterpret_cast<const char*>(&number), sizeof(number));
}

bool SendBytes(HANDLE writer, std::string_view bytes) {
  return SendNumber(writer, bytes.size()) && WriteAll(writer, bytes.data(), bytes.size());
}

std::optional<std::uint64_t> ReceiveNumber(HANDLE reader) {
  std::uint64_t number = 0;
  if (!ReadAll(reader, reinterpret_cast<char*>(&number), sizeof(number))) return {};
  return number;
}

std::optional<std::string> ReceiveBytes(HANDLE reader) {
  const std::optional<std::uint64_t> size = ReceiveNumber(reader);
  if (!size) return {};
  std::string bytes(static_cast<std::size_t>(*size), '\0');
  if (!ReadAll(reader, bytes.data(), bytes.size())) return {};
  return bytes;
}

}  // namespace platform
