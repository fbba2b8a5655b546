#include "tests/cli/view/page_takes.h"

#include <zlib.h>

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace test {
namespace {

const std::string kStart = R"(<script type="application/json" id="embedded-takes">)";

std::string FromBase64(const std::string& text) {
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  if (text.size() % 4 != 0) throw std::runtime_error("not whole groups of base64");
  std::string bytes;
  unsigned bits = 0;
  int held = 0;
  for (const char letter : text.substr(0, text.find('='))) {
    const std::size_t value = letters.find(letter);
    if (value == std::string::npos) throw std::runtime_error("no letter of base64");
    bits = (bits << 6U | static_cast<unsigned>(value)) & 0xffffU;
    held += 6;
    if (held < 8) continue;
    held -= 8;
    bytes += static_cast<char>(bits >> static_cast<unsigned>(held) & 0xffU);
  }
  return bytes;
}

std::string Unzipped(std::string bytes) {
  z_stream stream{};
  inflateInit2(&stream, MAX_WBITS + 16);
  stream.next_in = reinterpret_cast<Bytef*>(bytes.data());
  stream.avail_in = static_cast<uInt>(bytes.size());
  std::string out;
  int status = Z_OK;
  while (status == Z_OK) {
    std::string piece(1U << 20U, '\0');
    stream.next_out = reinterpret_cast<Bytef*>(piece.data());
    stream.avail_out = static_cast<uInt>(piece.size());
    status = inflate(&stream, Z_NO_FLUSH);
    out.append(piece, 0, piece.size() - stream.avail_out);
  }
  inflateEnd(&stream);
  if (status != Z_STREAM_END) throw std::runtime_error("no whole gzip file");
  return out;
}

}  // namespace

std::string TakesText(const std::string& page) {
  const std::size_t start = page.find(kStart);
  if (start == std::string::npos || page.find(kStart, start + 1) != std::string::npos) {
    throw std::runtime_error("not one place of takes");
  }
  const std::size_t text = start + kStart.size();
  return page.substr(text, page.find("</script", text) - text);
}

std::vector<PageTake> TakesIn(const std::string& page) {
  std::vector<PageTake> takes;
  for (const auto& take : nlohmann::json::parse(TakesText(page))) {
    takes.push_back({take.at("name"), Unzipped(FromBase64(take.at("gzip")))});
  }
  return takes;
}

}  // namespace test
