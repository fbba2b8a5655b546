#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/gltf/file/blocks.h"
#include "host/gltf/file/file_sink.h"

// The way of a file that is being made to where it goes.

namespace host::gltf {

// Hands bytes to a sink in few large pieces, all but the last of kPieceSize bytes. The sink
// outlives it; what it does not take is dropped.
class Output {
 public:
  // Whole groups of three bytes, for base64.
  static constexpr std::size_t kPieceSize = std::size_t{3} << 15U;

  explicit Output(FileSink& sink) : sink_(sink) { piece_.reserve(kPieceSize); }

  void Append(std::string_view bytes) {
    while (!bytes.empty()) {
      const std::size_t count = std::min(bytes.size(), kPieceSize - piece_.size());
      piece_.append(bytes.data(), count);
      bytes.remove_prefix(count);
      if (piece_.size() == kPieceSize) Flush();
    }
  }
  void Append(const Blocks& blocks) {
    for (const std::string& block : blocks.All()) Append(block);
  }

  // As they lie in memory.
  template <typename Numbers>
  void AppendNumbers(const Numbers& numbers) {
    if (numbers.empty()) return;
    Append({reinterpret_cast<const char*>(numbers.data()), numbers.size() * sizeof numbers[0]});
  }

  // To be called once, behind everything.
  void End() { Flush(); }

 private:
  void Flush();

  FileSink& sink_;
  bool is_taken_ = true;
  std::string piece_;
};

// The size of what `write` appends to the Output that it is given, in bytes.
class SizeCount final : public FileSink {
 public:
  bool Take(std::string_view bytes) override {
    size_ += bytes.size();
    return true;
  }
  std::uint64_t Size() const { return size_; }

 private:
  std::uint64_t size_ = 0;
};

template <typename Write>
std::uint64_t SizeOf(const Write& write) {
  SizeCount count;
  Output output(count);
  write(output);
  output.End();
  return count.Size();
}

}  // namespace host::gltf
