#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/gltf/file/json_list.h"

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
  std::size_t offset = 0;  // bytes from the start
  std::size_t size = 0;    // bytes
  int target = 0;          // what graphics cards read it as; 0 for nothing
};

// The numbers of a glTF file: appends them to its one buffer and describes them by an accessor
// each.
class BinaryData {
 public:
  // Every one of these returns the accessor's index.
  // REQUIRES: the list holds whole elements, at least one.
  //
  // Of vertices: x, y and z each; the same of the direction they face; four joints each; four
  // weights each.
  int AddPositions(const std::vector<float>& positions);
  int AddNormals(const std::vector<float>& normals);
  int AddJoints(const std::vector<std::uint16_t>& joints);
  int AddWeights(const std::vector<float>& weights);

  // The vertices of triangles, three each.
  int AddTriangles(const std::vector<std::uint32_t>& vertices);

  // 16 numbers each, column by column.
  int AddMatrices(const std::vector<float>& matrices);

  // The times of keys, rising; and their values, which have three components or, for rotations,
  // four.
  int AddKeyTimes(const std::vector<float>& seconds);
  int AddKeyVectors(const std::vector<float>& vectors);
  int AddKeyRotations(const std::vector<float>& rotations);

  // What viewers have no use for: begins a view, whose index is returned, and appends to the view
  // that was begun last.
  // REQUIRES of Append: there is such a view.
  int BeginView() { return OwnView(0); }
  void Append(std::string_view bytes);
  template <typename Numbers>
  void AppendNumbers(const Numbers& numbers) {
    Append({reinterpret_cast<const char*>(numbers.data()), numbers.size() * sizeof numbers[0]});
  }

  // An accessor for all elements of that form in the view that was begun last. Without any there is
  // no accessor, and no view either.
  // REQUIRES: there is such a view.
  std::optional<int> AddViewAccessor(const ElementForm& form);

  const std::string& Bytes() const { return bytes_; }
  const std::vector<BufferView>& Views() const { return views_; }
  const JsonList& Accessors() const { return accessors_; }
  JsonList& Accessors() { return accessors_; }

 private:
  // Where numbers come to lie: in a view of their own for what graphics cards read, or in one that
  // all keys share.
  int OwnView(int target);
  void KeyView();

  // Appends `numbers` to the last view.
  template <typename Number>
  int Add(const std::vector<Number>& numbers, const ElementForm& form);
  int AddWithBounds(const std::vector<float>& numbers, const ElementForm& form);

  std::string bytes_;
  std::vector<BufferView> views_;
  JsonList accessors_;

  // How many views there were when keys were last added: then theirs is the last one.
  std::size_t key_views_ = 0;
};

}  // namespace host::gltf
