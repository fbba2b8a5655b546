#pragma once

#include <exception>
#include <stdexcept>
#include <string>

#include "platform/export.h"

// How a script fails. Between a script and the program that started it stands the module, and no
// exception may cross that: the desktop catches it, keeps it here and hands it out afterwards.

namespace host {

// What a scripted desktop throws into a script that does what nobody in front of a screen could
// do, and keeps when a script leaves a question unanswered.
class SKELDER_API ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  ~ScriptError() override;
};

// The first failure of a script, of any exception type; later ones follow from it and are dropped.
class ScriptFailure {
 public:
  // Keeps `failure` unless there is one already.
  void Keep(std::exception_ptr failure);

  // Throws what was kept, if anything was.
  void Rethrow() const;

  [[nodiscard]] bool HasHappened() const { return failure_ != nullptr; }

 private:
  std::exception_ptr failure_;
};

}  // namespace host
