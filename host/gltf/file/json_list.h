#pragma once

#include <nlohmann/json.hpp>
#include <string>

// A long list of a file that is being made. The document owns its lists.

namespace host::gltf {

// A JSON array, kept as text: what is added becomes text at once, because as an object it takes
// many times the memory. Every element stands on a line of its own.
class JsonList {
 public:
  // Returns the index of the new element.
  int Add(const nlohmann::json& element) {
    if (!IsEmpty()) elements_ += ",\n";
    elements_ += element.dump();
    return size_++;
  }

  bool IsEmpty() const { return size_ == 0; }

  // The elements with commas between them, without the brackets.
  const std::string& Elements() const { return elements_; }

 private:
  std::string elements_;
  int size_ = 0;
};

}  // namespace host::gltf
