#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "host/gltf/file/blocks.h"

// A long list of a file that is being made. The document owns its lists.

namespace host::gltf {

// A JSON array, kept as text. Every element stands on a line of its own.
class JsonList {
 public:
  // Return the index of the new element, which is the value, or what `append` appends to the text
  // that it is given.
  int Add(const nlohmann::json& element) {
    return AddText([&](std::string& text) { text += element.dump(); });
  }
  template <typename Append>
  int AddText(const Append& append) {
    std::string& text = elements_.Tail();
    if (!IsEmpty()) text += ",\n";
    append(text);
    return size_++;
  }

  bool IsEmpty() const { return size_ == 0; }

  // The elements with commas between them, without the brackets.
  const Blocks& Elements() const { return elements_; }

 private:
  Blocks elements_;
  int size_ = 0;
};

}  // namespace host::gltf
