#include "cli/view/gzip.h"

#define ZLIB_CONST  // what is read is const
#include <zlib.h>

#include <algorithm>
#include <array>
#include <limits>
#include <new>

namespace cli {
namespace {

class Deflater {
 public:
  Deflater() {
    constexpr int kGzip = 16;  // added to the bits of the window
    constexpr int kMemory = 8;
    const int status = deflateInit2(&stream_, Z_DEFAULT_COMPRESSION, Z_DEFLATED, MAX_WBITS + kGzip,
                                    kMemory, Z_DEFAULT_STRATEGY);
    if (status != Z_OK) throw std::bad_alloc();
  }
  Deflater(const Deflater&) = delete;
  Deflater& operator=(const Deflater&) = delete;
  ~Deflater() { deflateEnd(&stream_); }

  // Adds what comes out of `bytes`, and with the last ones of all that is held back, to `out`.
  void Take(std::string_view bytes, bool is_last, std::string& out) {
    stream_.next_in = reinterpret_cast<const Bytef*>(bytes.data());
    stream_.avail_in = static_cast<uInt>(bytes.size());
    do {
      stream_.next_out = piece_.data();
      stream_.avail_out = static_cast<uInt>(piece_.size());
      deflate(&stream_, is_last ? Z_FINISH : Z_NO_FLUSH);
      out.append(reinterpret_cast<const char*>(piece_.data()), piece_.size() - stream_.avail_out);
    } while (stream_.avail_out == 0);
  }

 private:
  z_stream stream_{};
  std::array<Bytef, 65536> piece_{};
};

}  // namespace

std::string Gzipped(std::string_view bytes) {
  constexpr std::size_t kLargestPiece = std::numeric_limits<int>::max();
  Deflater deflater;
  std::string out;
  while (bytes.size() > kLargestPiece) {
    deflater.Take(bytes.substr(0, kLargestPiece), false, out);
    bytes.remove_prefix(kLargestPiece);
  }
  deflater.Take(bytes, true, out);
  return out;
}

}  // namespace cli
