#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "formats/text/byte_source.h"

// What is read: a file that lies somewhere, or its bytes in Python's memory.

namespace binding {

class Input {
 public:
  // The file `name`; with `bytes`, which must outlive this, those of a file that is called so.
  Input(std::string name, std::optional<std::string_view> bytes)
      : name_(std::move(name)), bytes_(bytes) {}

  [[nodiscard]] const std::string& Name() const { return name_; }

  // Its bytes, from the first one on. Throws a FileRefusal when it cannot be opened. Reading throws
  // one when not all can be read, and Python's exception when the user interrupts it, which is
  // noticed in the main thread alone. It needs no lock of the interpreter.
  [[nodiscard]] std::unique_ptr<orvane::ByteSource> Open() const;

 private:
  std::string name_;
  std::optional<std::string_view> bytes_;
};

}  // namespace binding
