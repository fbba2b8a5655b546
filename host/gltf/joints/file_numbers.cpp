#include "host/gltf/joints/file_numbers.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

#include "host/gltf/file/stored_view.h"

namespace host::gltf {

namespace {

// How often the bytes of a file may be told of, on average.
constexpr std::size_t kTimesTold = 4;

constexpr int kFloat = 5126;

struct Component {
  int type;
  std::size_t bytes;
  double whole;  // what an integer that stands for 1 is
};

constexpr Component kComponents[] = {
    {5120, 1, 127.0}, {5121, 1, 255.0}, {5122, 2, 32767.0}, {5123, 2, 65535.0}, {kFloat, 4, 1.0}};

constexpr std::pair<std::string_view, std::size_t> kWidths[] = {
    {"SCALAR", 1}, {"VEC3", 3}, {"VEC4", 4}, {"MAT4", 16}};

const Component& ComponentOf(int type) {
  return *std::find_if(std::begin(kComponents), std::end(kComponents),
                       [type](const Component& each) { return each.type == type; });
}

std::size_t WidthOf(std::string_view type) {
  const auto* width = std::find_if(std::begin(kWidths), std::end(kWidths),
                                   [type](const auto& each) { return each.first == type; });
  assert(width != std::end(kWidths));
  return width->second;
}

template <typename Number>
double NumberAt(const char* bytes) {
  Number number;
  std::memcpy(&number, bytes, sizeof number);
  return static_cast<double>(number);
}

// Any number, as far as floats have one that is finite; a fraction from -1 to 1 otherwise.
double ValueAt(const char* bytes, int type) {
  switch (type) {
    case 5120:
      return std::max(NumberAt<std::int8_t>(bytes) / ComponentOf(type).whole, -1.0);
    case 5121:
      return NumberAt<std::uint8_t>(bytes) / ComponentOf(type).whole;
    case 5122:
      return std::max(NumberAt<std::int16_t>(bytes) / ComponentOf(type).whole, -1.0);
    case 5123:
      return NumberAt<std::uint16_t>(bytes) / ComponentOf(type).whole;
    default:
      return NumberAt<float>(bytes);
  }
}

// The type of the numbers of `accessor`: floats or, of rotations, fractions as integers.
int ComponentTypeOf(const JsonField& accessor, std::string_view type) {
  const JsonField field = accessor.Member("componentType");
  const int component = field.Int();
  if (component == kFloat) return component;
  const auto normalized = accessor.FindMember("normalized");
  const bool is_known = std::any_of(std::begin(kComponents), std::end(kComponents),
                                    [&](const Component& each) { return each.type == component; });
  if (type != "VEC4" || !is_known || !normalized || !normalized->Bool()) {
    field.Refuse("not 5126, which stands for floats");
  }
  return component;
}

// From the start of one element to that of the next; no less than `size` bytes.
std::size_t StrideOf(const JsonField& view, std::size_t size) {
  constexpr std::int64_t kMostStride = 252;
  const auto stride = view.FindMember("byteStride");
  if (!stride) return size;
  return static_cast<std::size_t>(stride->Whole(static_cast<std::int64_t>(size), kMostStride));
}

}  // namespace

double FileNumbers::At(std::size_t element, std::size_t component) const {
  assert(element < count_);
  const std::size_t place = element * stride_ + component * ComponentOf(component_type_).bytes;
  return ValueAt(bytes_.data() + place, component_type_);
}

Accessors::Accessors(const FileParts& file)
    : file_(file), most_numbers_(kTimesTold * file.Binary().size()) {}

FileNumbers Accessors::Find(const JsonField& reference, std::string_view type) {
  const ListedElement listed = ElementOf(file_, "accessors", reference);
  const auto known = known_.find(listed.index);
  if (known != known_.end() && known->second.type == type) return known->second.numbers;
  const FileNumbers numbers = Look(listed.field, type);
  known_.insert_or_assign(listed.index, Known{type, numbers});
  return numbers;
}

FileNumbers Accessors::Look(const JsonField& accessor, std::string_view type) {
  if (accessor.FindMember("sparse")) accessor.Refuse("sparse, which this program does not read");
  const JsonField type_field = accessor.Member("type");
  if (type_field.Text() != type) type_field.Refuse("not " + std::string(type));
  const JsonField reference = accessor.Member("bufferView");
  const JsonField view = ElementOf(file_, "bufferViews", reference).field;
  const std::size_t width = WidthOf(type);
  FileNumbers numbers;
  numbers.component_type_ = ComponentTypeOf(accessor, type);
  const std::size_t size = width * ComponentOf(numbers.component_type_).bytes;
  numbers.stride_ = StrideOf(view, size);
  numbers.bytes_ = BytesBehind(accessor, StoredView(file_, reference));
  const std::size_t rest = numbers.bytes_.size();
  const std::size_t most = rest < size ? 0 : (rest - size) / numbers.stride_ + 1;
  numbers.count_ =
      static_cast<std::size_t>(accessor.Member("count").Whole(0, static_cast<std::int64_t>(most)));
  RequireFinite(numbers, width, accessor);
  return numbers;
}

void Accessors::RequireFinite(const FileNumbers& numbers, std::size_t width,
                              const JsonField& accessor) {
  if (numbers.Size() > most_numbers_ / width) {
    accessor.Refuse("one of many that tell of the same bytes");
  }
  most_numbers_ -= numbers.Size() * width;
  for (std::size_t element = 0; element < numbers.Size(); ++element) {
    for (std::size_t component = 0; component < width; ++component) {
      if (std::isfinite(numbers.At(element, component))) continue;
      accessor.Refuse("a list of numbers that are not all finite");
    }
  }
}

}  // namespace host::gltf
