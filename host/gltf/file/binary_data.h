#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "host/gltf/file/blocks.h"
#include "host/gltf/file/json_list.h"
#include "host/gltf/file/output.h"

// The numbers of a file that is being made, and where each of them lies. What they mean is told by
// the document that refers to them, which owns them.

namespace host::gltf {

// The forms that the elements of an accessor have in our files.
struct ElementForm {
  const char* type;
  int component_type;
  std::size_t bytes;  // of an element
};

inline constexpr ElementForm kJointsForm{"VEC4", 5123, 8};
inline constexpr ElementForm kWordForm{"SCALAR", 5125, 4};
inline constexpr ElementForm kNumberForm{"SCALAR", 5126, 4};
inline constexpr ElementForm kThreeNumbersForm{"VEC3", 5126, 12};
inline constexpr ElementForm kFourNumbersForm{"VEC4", 5126, 16};
inline constexpr ElementForm kMatrixForm{"MAT4", 5126, 64};

// A part of the data.
struct BufferView {
  std::uint64_t offset = 0;  // bytes from the start
  std::uint64_t size = 0;    // bytes
  int target = 0;            // what graphics cards read it as; 0 for nothing
};

// MadeNumbers of a file that are made when it is written: they may take many times the memory of
// what they are made of.
struct MadeNumbers {
  std::uint64_t size = 0;               // bytes
  std::function<void(Output&)> append;  // appends so many, the same whenever it is called
};

// MadeNumbers that are there.
template <typename Number>
MadeNumbers NumbersOf(std::vector<Number> numbers) {
  const std::size_t size = numbers.size() * sizeof(Number);
  return {size, [kept = std::move(numbers)](Output& output) { output.AppendNumbers(kept); }};
}

// The smallest and the largest of each component of an accessor, which some must have.
class Bounds {
 public:
  explicit Bounds(std::size_t components) : components_(components) {}

  // Adds whole elements.
  template <typename List>
  void Add(const List& numbers) {
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const std::size_t component = i % components_;
      if (smallest_.size() < components_) {
        smallest_.push_back(numbers[i]);
        largest_.push_back(numbers[i]);
      }
      smallest_[component] = std::min(smallest_[component], numbers[i]);
      largest_[component] = std::max(largest_[component], numbers[i]);
    }
  }

  const std::vector<float>& Smallest() const { return smallest_; }
  const std::vector<float>& Largest() const { return largest_; }

 private:
  std::size_t components_;
  std::vector<float> smallest_;
  std::vector<float> largest_;
};

// The numbers of a glTF file, which lie in its one buffer and are described by an accessor each.
class BinaryData {
 public:
  // Every one of these returns the accessor's index.
  // REQUIRES: there are whole elements, at least one.
  //
  // Of vertices: x, y and z each, and the bounds of that; the same of the direction they face; four
  // joints each (16 bits); four weights each.
  int AddPositions(MadeNumbers positions, const Bounds& bounds);
  int AddNormals(MadeNumbers normals);
  int AddJoints(MadeNumbers joints);
  int AddWeights(MadeNumbers weights);

  // The vertices of triangles, three each (32 bits).
  int AddTriangles(MadeNumbers vertices);

  // 16 numbers each, column by column.
  int AddMatrices(MadeNumbers matrices);

  // The times of keys, rising; and their values, which have three components or, for rotations,
  // four.
  int AddKeyTimes(const std::vector<float>& seconds);
  int AddKeyVectors(const std::vector<float>& vectors);
  int AddKeyRotations(const std::vector<float>& rotations);

  // What viewers have no use for: begins a view, whose index is returned, and appends to the view
  // that was begun last.
  // REQUIRES of Append: there is such a view.
  int BeginView() { return OwnView(0); }
  void Append(MadeNumbers numbers);

  // An accessor for all elements of that form in the view that was begun last. Without any there is
  // no accessor, and no view either.
  // REQUIRES: there is such a view.
  std::optional<int> AddViewAccessor(const ElementForm& form);

  // Appends all of it, Size() bytes.
  void AppendTo(Output& output) const;
  std::uint64_t Size() const { return size_; }

  const std::vector<BufferView>& Views() const { return views_; }
  const JsonList& Accessors() const { return accessors_; }

 private:
  // Where numbers come to lie: in a view of their own for what graphics cards read, or in one that
  // all keys share.
  int OwnView(int target);
  void KeyView();

  // Appends bytes behind the last part.
  void Hold(std::string_view bytes);

  // Append numbers to the last view.
  int Add(MadeNumbers numbers, const ElementForm& form, const Bounds* bounds = nullptr);
  int AddKeys(const std::vector<float>& numbers, const ElementForm& form,
              const Bounds* bounds = nullptr);

  // An accessor for what the last view has from `offset` on.
  int AddAccessor(std::uint64_t offset, const ElementForm& form, const Bounds* bounds);

  std::vector<std::variant<Blocks, MadeNumbers>> parts_;
  std::uint64_t size_ = 0;
  std::vector<BufferView> views_;
  JsonList accessors_;

  // How many views there were when keys were last added: then theirs is the last one.
  std::size_t key_views_ = 0;
};

}  // namespace host::gltf
