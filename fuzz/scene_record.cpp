// Bytes as the record that a scene file keeps for ourselves, in a file that is sound around it: a
// fuzzer that has to guess sizes and base64 first does not come so far.
#include <string>
#include <string_view>

#include "fuzz/scene_round_trip.h"
#include "fuzz/target.h"

namespace {

std::string Word(std::size_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xFFU);
  return bytes;
}

// Two ticks; four values of each kind, all zero but for the first component; angles for two keys.
constexpr char kNumbers[] =
    R"("accessors": [
         {"bufferView": 0, "componentType": 5125, "type": "SCALAR", "count": 2},
         {"bufferView": 1, "componentType": 5126, "type": "VEC3", "count": 4},
         {"bufferView": 1, "componentType": 5126, "type": "VEC4", "count": 4},
         {"bufferView": 1, "componentType": 5125, "type": "SCALAR", "count": 12}],
       "bufferViews": [
         {"buffer": 0, "byteLength": 8}, {"buffer": 0, "byteOffset": 8, "byteLength": 64})";

constexpr char kExtension[] =
    R"({"extensions": {"ORVANE_scene": {
          "version": 2, "scene": 2, "ticks": 0, "vectors": 1, "rotations": 2, "angles": 3}}, )";

std::string FileAround(std::string_view record) {
  const std::string numbers =
      Word(0xFFFFFFFF) + Word(1) + std::string("\0\0\x80\x3F", 4) + std::string(60, '\0');
  const std::string document = kExtension + std::string(kNumbers) +
                               R"(, {"buffer": 0, "byteOffset": )" +
                               std::to_string(numbers.size()) + R"(, "byteLength": )" +
                               std::to_string(record.size()) + "}]}";
  const std::string chunks = Word(document.size()) + "JSON" + document +
                             Word(numbers.size() + record.size()) + std::string("BIN\0", 4) +
                             numbers + std::string(record);
  return "glTF" + Word(2) + Word(12 + chunks.size()) + chunks;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::ExpectRoundTrip(FileAround({reinterpret_cast<const char*>(data), size}));
  return 0;
}
